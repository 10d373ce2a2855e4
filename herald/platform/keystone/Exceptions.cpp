#include <herald/platform/keystone/BugReporter.h>
#include <herald/platform/keystone/Exceptions.h>
#include <herald/platform/keystone/UTFEncoder.h>

#include <utility>

namespace Tessel {

namespace {

std::wstring join(const std::wstring& text, const std::wstring& detail) {
  return text.empty() || detail.empty() ? text + detail : text + L": " + detail;
}

}  // namespace

KVRException::KVRException(std::wstring file, int line, std::wstring text, std::wstring detail)
    : file_(std::move(file)), text_(std::move(text)), detail_(std::move(detail)),
      what_(UTFEncoder::toUTF8(join(text_, detail_))), line_(line) {}

KVRException::~KVRException() = default;

void KVRException::setCaughtBy(std::wstring file, int line) {
  caughtByFile_ = std::move(file);
  caughtByLine_ = line;
}

void KVRException::report() const { BugReporter::getInstance().report(*this); }

void KVRException::report(BugReporterInterface& reporter) const { reporter.report(*this); }

KeystoneException::KeystoneException(std::wstring file, int line, std::wstring text)
    : KVRException(std::move(file), line, std::move(text)) {}
KeystoneException::~KeystoneException() = default;

ObjectNotFoundException::ObjectNotFoundException(std::wstring file, int line, std::wstring text)
    : KVRException(std::move(file), line, std::move(text)) {}
ObjectNotFoundException::~ObjectNotFoundException() = default;

MessageException::MessageException(std::wstring file, int line, std::wstring text, std::wstring detail)
    : KVRException(std::move(file), line, std::move(text), std::move(detail)) {}
MessageException::~MessageException() = default;

NullPointerException::NullPointerException(std::wstring file, int line, std::wstring text, std::wstring detail)
    : KVRException(std::move(file), line, std::move(text), std::move(detail)) {}
NullPointerException::~NullPointerException() = default;

IllegalAccessException::IllegalAccessException(std::wstring file, int line, std::wstring text, std::wstring detail)
    : KVRException(std::move(file), line, std::move(text), std::move(detail)) {}
IllegalAccessException::~IllegalAccessException() = default;

IllegalStateTransitionException::IllegalStateTransitionException(std::wstring file, int line, std::wstring text,
                                                                 std::wstring detail)
    : KVRException(std::move(file), line, std::move(text), std::move(detail)) {}
IllegalStateTransitionException::~IllegalStateTransitionException() = default;

ReadResourceException::ReadResourceException(std::wstring file, int line, std::wstring text, std::wstring detail)
    : KVRException(std::move(file), line, std::move(text), std::move(detail)) {}
ReadResourceException::~ReadResourceException() = default;

OutOfBoundsException::OutOfBoundsException(std::wstring file, int line, std::wstring name, int lowest, int highest,
                                           int index, std::wstring text)
    : KVRException(std::move(file), line, std::move(text),
                   name + L"=" + std::to_wstring(index) + L" is outside " + std::to_wstring(lowest) + L" to "
                       + std::to_wstring(highest)),
      name_(std::move(name)), lowest_(lowest), highest_(highest), index_(index) {}
OutOfBoundsException::~OutOfBoundsException() = default;

}  // namespace Tessel
