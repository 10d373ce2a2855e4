#include "Encode.h"

#include <herald/inspect/Encoding.h>
#include <herald/inspect/Inspectable.h>
#include <herald/inspect/Schema.h>
#include <herald/messages/RequestFrame.h>
#include <herald/platform/keystone/ByteStream.h>
#include <herald/platform/keystone/Exceptions.h>

#include <algorithm>
#include <cstdlib>
#include <functional>
#include <limits>
#include <nlohmann/json.hpp>
#include <optional>

#include "CaptureWriter.h"
#include "Diagnostics.h"
#include "Hex.h"
#include "Input.h"
#include "JsonSource.h"
#include "Output.h"
#include "Packet.h"
#include "Terminal.h"

namespace Tessel {

namespace {

using Json = nlohmann::json;

/// A line that cannot be encoded.
class LineError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// Whose layout a class is. A record travels only within others.
struct Travels {
  std::optional<Direction> direction;
  int id = 0;
};

struct EncodedLine {
  Travels travels;
  IsoTime time{0, TimePrecision::MICROSECONDS};
  ByteStream body;
};

Travels travelsAs(std::string_view className) {
  const Schema& schema = Schema::ofProtocol();
  const auto isOfClass = [&](const MessageSchema& row) { return row.body != nullptr && row.body->name == className; };
  if (const auto row = std::ranges::find_if(schema.messages(), isOfClass); row != schema.messages().end())
    return {Direction::FROM_SERVER, row->id};
  if (const auto row = std::ranges::find_if(schema.requests(), isOfClass); row != schema.requests().end())
    return {Direction::TO_SERVER, row->id};
  return {};
}

const RecordSchema* bodyOf(Direction direction, int id) {
  const Schema& schema = Schema::ofProtocol();
  const auto rows = direction == Direction::FROM_SERVER ? schema.messages() : schema.requests();
  const auto row = std::ranges::find(rows, id, &MessageSchema::id);
  return row != rows.end() ? row->body : nullptr;
}

std::string classNameIn(const Json& object) {
  const auto name = object.find("class");
  if (name == object.end() || !name->is_string()) throw LineError("class: there is none");
  return name->get<std::string>();
}

void encodeObject(const Json& object, ByteStream& body) {
  JsonSource source(object);
  encodeFrom(source, classNameIn(object), body);
}

// "direction" and "id", which must not contradict the class of the message.
Travels travelsIn(const Json& line, const Json& message) {
  const auto direction = line.find("direction");
  const auto id = line.find("id");
  const bool hasMessage = message.is_object();
  Travels travels = hasMessage ? travelsAs(classNameIn(message)) : Travels();
  if (direction != line.end()) {
    travels.direction = directionNamed(direction->is_string() ? direction->get<std::string>() : "");
    if (!travels.direction) throw LineError("direction: " + direction->dump() + " is no direction");
  }
  if (id != line.end()) {
    if (!id->is_number_integer() || *id < std::numeric_limits<std::int16_t>::min()
        || *id > std::numeric_limits<std::int16_t>::max())
      throw LineError("id: " + id->dump() + " does not fit a short");
    travels.id = id->get<int>();
  }
  if (!travels.direction || (id == line.end() && !hasMessage)) throw LineError("direction, id: there is none");
  const RecordSchema* body = bodyOf(*travels.direction, travels.id);
  if (hasMessage && (body == nullptr || body->name != classNameIn(message)))
    throw LineError("message.class: the id " + std::to_string(travels.id) + " has another class");
  return travels;
}

IsoTime timeIn(const Json& line) {
  const auto time = line.find("time");
  if (time == line.end()) return {0, TimePrecision::MICROSECONDS};
  return parseIsoTime(time->is_string() ? time->get<std::string>() : time->dump());
}

void encodeBody(const Json& line, const Json& message, ByteStream& body) {
  const auto hex = line.find("hex");
  if (hex != line.end()) {
    if (*hex == SECRET_MASK) throw LineError("hex: is masked");
    body.append(parseHex(hex->is_string() ? hex->get<std::string>() : hex->dump()));
  } else if (message.is_object()) {
    encodeObject(message, body);
  } else if (!message.is_null()) {
    throw LineError("message: " + message.dump() + " is no object");
  }
}

EncodedLine encodeLine(std::string_view text) {
  const Json line = Json::parse(text);
  if (!line.is_object()) throw LineError("it is no JSON object");
  EncodedLine encoded;
  if (const auto message = line.find("message"); message != line.end() && line.contains("packet")) {
    encoded.travels = travelsIn(line, *message);
    encoded.time = timeIn(line);
    encodeBody(line, *message, encoded.body);
  } else {
    encoded.travels = travelsAs(classNameIn(line));
    encodeObject(line, encoded.body);
  }
  if (encoded.travels.direction == Direction::TO_SERVER && encoded.body.bytes().size() > MAX_BODY_SIZE)
    throw LineError("a body of " + std::to_string(encoded.body.bytes().size()) + " bytes is too long for a request");
  return encoded;
}

// With what travels before the body: the id, and the size of a request's.
ByteStream framed(const EncodedLine& line) {
  ByteStream message;
  message << static_cast<std::int16_t>(line.travels.id);
  if (line.travels.direction == Direction::TO_SERVER) message << static_cast<std::int16_t>(line.body.bytes().size());
  message.append(line.body.bytes());
  return message;
}

// What becomes of a line.
using Take = std::function<void(const EncodedLine& line)>;

// Lines of text, without native limits to their length.
class Lines {
 public:
  Lines(const std::string& file, InputOptions options)
      : input_(std::make_unique<Input>(file, std::move(options))), stream_(input_.open()) {}
  ~Lines() {
    std::fclose(stream_);
    std::free(line_);
  }
  Lines(const Lines&) = delete;
  Lines& operator=(const Lines&) = delete;

  /// Nothing at the end. Throws `InputError`.
  std::optional<std::string_view> next() {
    const ssize_t length = getline(&line_, &capacity_, stream_);
    if (length < 0) {
      input_.rethrow();
      return std::nullopt;
    }
    ++number_;
    return std::string_view(line_, static_cast<std::size_t>(length));
  }
  std::size_t number() const { return number_; }

 private:
  InputFile input_;
  std::FILE* stream_;
  char* line_ = nullptr;
  std::size_t capacity_ = 0;
  std::size_t number_ = 0;
};

bool encodeFile(const std::string& file, InputOptions options, const Take& take, Diagnostics& diagnostics) {
  const std::string name = file == "-" ? "standard input" : file;
  std::size_t number = 0;
  try {
    Lines lines(file, std::move(options));
    while (const auto line = lines.next()) {
      number = lines.number();
      if (line->find_first_not_of(" \t\r\n") != std::string_view::npos) take(encodeLine(*line));
    }
    return true;
  } catch (const OutputError&) {
    throw;
  } catch (const CaptureWriteError&) {
    throw;
  } catch (const std::exception& failure) {
    const std::string place = number > 0 ? ": line " + std::to_string(number) : "";
    diagnostics.complain(name + place + ": " + escaped(failure.what()));
    return false;
  }
}

bool encodeAll(const std::vector<std::string>& files, const InputOptions& options, const Take& take,
               Diagnostics& diagnostics) {
  return std::ranges::all_of(files,
                             [&](const std::string& file) { return encodeFile(file, options, take, diagnostics); });
}

// Which precision the capture has, the first line tells.
class CaptureOfLines {
 public:
  explicit CaptureOfLines(std::string file) : file_(std::move(file)) {}

  void take(const EncodedLine& line) {
    if (!line.travels.direction) throw LineError("class: a record does not travel alone");
    open(line.time.precision);
    writer_->write(*line.travels.direction, line.time.nanoseconds, framed(line).bytes());
  }
  void flush() {
    if (writer_) writer_->flush();
  }
  void close() {
    open(TimePrecision::MICROSECONDS);
    writer_->close();
  }

 private:
  void open(TimePrecision precision) {
    if (!writer_) writer_.emplace(file_, precision);
  }

  std::string file_;
  std::optional<CaptureWriter> writer_;
};

}  // namespace

bool encodeFiles(const std::vector<std::string>& files, const EncodeOptions& options, Output& output,
                 Diagnostics& diagnostics) {
  if (options.capture.empty()) {
    const auto printHex = [&](const EncodedLine& line) {
      output.write(toHex(line.travels.direction == Direction::TO_SERVER ? framed(line).bytes() : line.body.bytes())
                   + '\n');
    };
    return encodeAll(files, {.beforeWaiting = [&] { output.flush(); }}, printHex, diagnostics);
  }
  CaptureOfLines capture(options.capture);
  const bool isEncoded = encodeAll(
      files, {.beforeWaiting = [&] { capture.flush(); }}, [&](const EncodedLine& line) { capture.take(line); },
      diagnostics);
  capture.close();
  return isEncoded;
}

}  // namespace Tessel
