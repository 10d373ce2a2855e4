#include "Report.h"

#include <fstream>
#include <nlohmann/json.hpp>
#include <stdexcept>

#include "../Capture.h"
#include "../Diagnostics.h"
#include "../Output.h"
#include "LayoutsOfSession.h"
#include "PackedPackets.h"

namespace Tessel {

namespace {

constexpr std::string_view STYLE =
#include "page.css.inc"
#include "report.css.inc"
    ;

constexpr std::string_view BODY =
#include "report.html.inc"
    ;

constexpr std::string_view SCRIPT =
#include "report.js.inc"
    ;

// Neither a script nor a request of another file runs in the page, whatever a capture holds.
constexpr std::string_view HEAD = R"(<!doctype html>
<html lang="en">
<meta charset="utf-8">
<meta http-equiv="Content-Security-Policy" content="default-src 'none'; style-src 'unsafe-inline'; script-src 'nonce-report'">
<meta name="viewport" content="width=device-width, initial-scale=1">
<title>Session</title>
<style>
)";

std::string base64(std::span<const std::uint8_t> bytes) {
  constexpr std::string_view DIGITS = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
  std::string text;
  text.reserve((bytes.size() + 2) / 3 * 4);
  for (std::size_t i = 0; i < bytes.size(); i += 3) {
    const std::size_t there = std::min<std::size_t>(3, bytes.size() - i);
    std::uint32_t group = 0;
    for (std::size_t k = 0; k < 3; ++k) group = group << 8 | (k < there ? bytes[i + k] : 0u);
    for (std::size_t k = 0; k < 4; ++k) text += k <= there ? DIGITS[group >> (18 - 6 * k) & 63] : '=';
  }
  return text;
}

// ASCII alone, and nothing that ends a script.
std::string toScriptText(const nlohmann::json& json) {
  std::string text;
  for (const char c : json.dump(-1, ' ', true, nlohmann::json::error_handler_t::replace)) {
    if (c == '<')
      text += "\\u003c";
    else
      text += c;
  }
  return text;
}

std::string element(std::string_view id, std::string_view type, std::string_view content) {
  return "<script id=\"" + std::string(id) + "\" type=\"" + std::string(type) + "\">" + std::string(content)
         + "</script>\n";
}

void writePage(const std::string& file, std::string_view page, Output& output) {
  if (file == "-") return output.write(page);
  std::ofstream stream(file, std::ios::binary);
  stream << page;
  stream.close();
  if (!stream) throw std::runtime_error(file + ": cannot be written");
}

// Gathers what the page shows.
class Session {
 public:
  explicit Session(Secrets secrets) : packets_(secrets), masks_(secrets == Secrets::MASKED) {}

  void add(const DecodedPacket& decoded) {
    layouts_.add(decoded.packet());
    packets_.add(decoded);
    precision_ = decoded.packet().precision;
  }
  bool isEmpty() const { return packets_.count() == 0; }

  std::string page(const std::string& capture, bool isSound) {
    nlohmann::json session = layouts_.toJson();
    session["capture"] = capture == "-" ? "standard input" : capture.substr(capture.rfind('/') + 1);
    session["packets"] = packets_.count();
    session["decimals"] = precision_ == TimePrecision::NANOSECONDS ? 9 : 6;
    session["masked"] = masks_;
    session["sound"] = isSound;
    for (int i = 0; i <= static_cast<int>(DecodeOutcome::READ_THREW); ++i)
      session["outcomes"].push_back(nameOf(static_cast<DecodeOutcome>(i)));
    return std::string(HEAD) + std::string(STYLE) + "</style>\n" + std::string(BODY)
           + element("session-data", "application/json", toScriptText(session))
           + element("packets-data", "text/plain", base64(packets_.finish())) + "<script nonce=\"report\">\n"
           + std::string(SCRIPT) + "</script>\n</html>\n";
  }

 private:
  LayoutsOfSession layouts_;
  PackedPackets packets_;
  bool masks_;
  TimePrecision precision_ = TimePrecision::MICROSECONDS;
};

}  // namespace

bool writeReport(const std::string& capture, const ReportOptions& options, Output& output, Diagnostics& diagnostics) {
  const WithReportSink quiet(std::make_shared<SilentReportSink>());
  Session session(options.secrets);
  const bool isSound = visitPackets({{capture}}, output, diagnostics, [&](const std::string&, const Packet& packet) {
    if (!options.filter.wants(packet)) return;
    const DecodedPacket decoded(packet);
    if (options.filter.wants(decoded)) session.add(decoded);
  });
  if (isSound || !session.isEmpty()) writePage(options.page, session.page(capture, isSound), output);
  return isSound;
}

}  // namespace Tessel
