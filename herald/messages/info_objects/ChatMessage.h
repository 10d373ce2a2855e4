#pragma once
#include <herald/messages/info_objects/WireRecord.h>
#include <herald/wire/Text.h>

namespace Tessel {

/// A line of chat. A text that cannot be decoded ends the read.
class HERALD_API ChatMessage : public ReadableWritableRecord<ChatMessage> {
 public:
  /// With which messages of the operators begin.
  static constexpr std::wstring_view ADMIN_PREFIX_CHAR = L"^";

  ChatMessage() = default;
  ChatMessage(std::wstring_view nickname, std::wstring_view message) : nickname_(nickname), message_(message) {}

  std::wstring getNickname() const { return nickname_.getString(); }
  std::wstring getMessage() const { return message_.getString(); }

  /// The first character of a text, to compare with `ADMIN_PREFIX_CHAR`; empty when the text is.
  static std::wstring getPrefixChar(std::wstring_view text) { return std::wstring(text.substr(0, 1)); }

  std::wstring toDebugString() const override;

  template <class Self, class Fields>
  static void wire(Self& self, Fields& fields) {
    fields.required("nickname", self.nickname_);
    fields.required("message", self.message_);
  }

 private:
  Text nickname_;
  Text message_;
};

}  // namespace Tessel
