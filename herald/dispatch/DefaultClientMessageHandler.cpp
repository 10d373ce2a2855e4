#include <herald/dispatch/DefaultClientMessageHandler.h>
#include <herald/platform/keystone/BugReporter.h>

#include <string>

namespace Tessel {

DefaultClientMessageHandler::~DefaultClientMessageHandler() = default;

void DefaultClientMessageHandler::traceName(std::string_view name) {
  trace(L"Default handling of message: " + std::wstring(name.begin(), name.end()));
}

void DefaultClientMessageHandler::trace(std::wstring_view text) { BugReporter::getInstance().traceText(text); }

}  // namespace Tessel
