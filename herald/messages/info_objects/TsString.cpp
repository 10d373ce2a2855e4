#include <herald/messages/info_objects/InfoListOperations.h>
#include <herald/messages/info_objects/TsString.h>
#include <herald/platform/keystone/BugReporter.h>
#include <herald/platform/keystone/UTFEncoder.h>
#include <herald/wire/FieldSink.h>

namespace Tessel {

namespace {

void reportTo(BugReporterInterface* reporter, const KeystoneException& failure) {
  if (reporter != nullptr)
    failure.report(*reporter);
  else
    failure.report();
}

}  // namespace

TsString::TsString(std::wstring_view text) : utf8_(UTFEncoder::toUTF8(text)) {}

std::wstring TsString::getString() const { return UTFEncoder::toWide(utf8_); }

void TsString::setString(std::wstring_view text) { utf8_ = UTFEncoder::toUTF8(text); }

bool TsString::read(ByteStream& in) {
  try {
    UTFEncoder::decodeFromTsUTF8(in, utf8_);
    return true;
  } catch (const KeystoneException& failure) {
    reportTo(reporter_, failure);
    return false;
  }
}

bool TsString::write(ByteStream& out) const {
  try {
    UTFEncoder::encodeToTsUTF8(std::string_view(utf8_), out);
    return true;
  } catch (const KeystoneException& failure) {
    reportTo(reporter_, failure);
    return false;
  }
}

ReadableObjectInfo* TsString::clone() const { return new TsString(*this); }

std::wstring TsString::toDebugString() const { return formatText(L"[TsString: %s]", getString()); }

int TsString::size() const { return static_cast<int>(utf8_.size() + sizeof(std::uint16_t)); }

void TsString::describe(FieldSink& sink) const { sink.text("value", utf8_, false); }

template class InfoList<TsString>;

}  // namespace Tessel
