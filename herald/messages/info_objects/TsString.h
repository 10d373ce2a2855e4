#pragma once
#include <herald/messages/info_objects/WireRecord.h>

#include <string>
#include <string_view>

namespace Tessel {

class BugReporterInterface;

/// A text field. It is kept as it came, as UTF-8, and becomes wide when asked.
class HERALD_API TsString : public ReadableWritableInfo {
 public:
  TsString() = default;
  TsString(std::wstring_view text);
  TsString(const wchar_t* text) : TsString(std::wstring_view(text)) {}

  std::wstring getString() const;
  /// A lone surrogate is kept, but cannot be written. What lies above U+10FFFF becomes U+FFFD.
  void setString(std::wstring_view text);
  const std::string& getUTF8() const { return utf8_; }
  /// Takes bytes that are valid UTF-8.
  void take(std::string_view utf8) { utf8_ = utf8; }

  /// Who is told of a text that cannot be read or written; null, as at first, is the process-wide reporter. Not owned:
  /// it must outlive this string and its copies.
  void setBugReporter(BugReporterInterface* reporter) { reporter_ = reporter; }

  /// False, with the failure reported and the old text kept, when the bytes are no text.
  bool read(ByteStream& in) override;
  /// False, with the failure reported and nothing written, when the text cannot be encoded.
  [[nodiscard]] bool write(ByteStream& out) const override;
  [[nodiscard]] ReadableObjectInfo* clone() const override;
  std::wstring toDebugString() const override;
  int size() const override;
  void describe(FieldSink& sink) const override;

  bool operator==(const TsString& other) const { return utf8_ == other.utf8_; }

 private:
  std::string utf8_;
  BugReporterInterface* reporter_ = nullptr;
};

}  // namespace Tessel
