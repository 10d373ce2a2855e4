#include "FieldPlaces.h"

#include <algorithm>
#include <stdexcept>

namespace Tessel {

namespace {

constexpr int MOST_LEVELS = 64;

// The body is not what its layout says.
class WrongBody : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// Goes through a body along its layout.
class PlaceFinder {
 public:
  explicit PlaceFinder(std::span<const std::uint8_t> body) : body_(body) {}

  void readRecord(const RecordSchema& record, const std::string& path) {
    if (++levels_ > MOST_LEVELS) throw WrongBody("too deep");
    std::vector<Seen> seen(record.fields.size());
    for (std::size_t i = 0; i < record.fields.size(); ++i) {
      const FieldSchema& field = record.fields[i];
      if (field.condition && !field.condition->holdsFor(seen[field.condition->field].number)) continue;
      seen[i] = read(field, path.empty() ? field.name : path + '.' + field.name, seen);
    }
    --levels_;
  }

  std::vector<FieldPlace> take() && { return std::move(places_); }

 private:
  // What conditions, counts and the classes of items need of an earlier field.
  struct Seen {
    std::int64_t number = 0;
    std::string text{};
  };

  Seen read(const FieldSchema& field, const std::string& path, const std::vector<Seen>& seen) {
    switch (field.kind) {
      case FieldKind::NUMBER:
        return {readNumber(field, field.type, path)};
      case FieldKind::TEXT:
        return {0, readText(field, path)};
      case FieldKind::RECORD:
        readRecord(*field.record, path);
        return {};
      case FieldKind::LIST:
        return {readList(field, path, seen)};
    }
    return {};
  }

  std::int64_t readNumber(const FieldSchema& field, WireType type, const std::string& path) {
    const std::size_t begin = at_;
    const std::int64_t number = takeNumber(widthOf(type));
    const std::string flag = number != 0 ? "true" : "false";
    places_.push_back({path, &field, begin, at_, type == WireType::BOOL ? flag : std::to_string(number)});
    return type == WireType::BOOL && number != 0 ? 1 : number;
  }

  std::string readText(const FieldSchema& field, const std::string& path) {
    const std::size_t begin = at_;
    const auto size = static_cast<std::uint16_t>(takeNumber(2));
    const auto bytes = takeBytes(size);
    std::string text(bytes.begin(), bytes.end());
    places_.push_back({path, &field, begin, at_, text});
    return text;
  }

  std::int64_t readList(const FieldSchema& list, const std::string& path, const std::vector<Seen>& seen) {
    const std::int64_t count = list.countField ? seen[*list.countField].number : readNumber(list, list.type, path);
    const FieldSchema* item = &list.items.front();
    if (list.tagField && count > 0) {
      const auto named = std::ranges::find(list.items, seen[*list.tagField].text, &FieldSchema::name);
      if (named == list.items.end()) throw WrongBody("no class of that name");
      item = &*named;
    }
    for (std::int64_t i = 0; i < count; ++i) read(*item, path + '[' + std::to_string(i) + ']', {});
    return count;
  }

  std::int64_t takeNumber(int width) {
    const auto bytes = takeBytes(static_cast<std::size_t>(width));
    std::uint64_t number = (bytes[0] & 0x80) != 0 ? ~std::uint64_t{0} : 0;
    for (const std::uint8_t byte : bytes) number = number << 8 | byte;
    return static_cast<std::int64_t>(number);
  }

  std::span<const std::uint8_t> takeBytes(std::size_t count) {
    if (body_.size() - at_ < count) throw WrongBody("too short");
    at_ += count;
    return body_.subspan(at_ - count, count);
  }

  std::span<const std::uint8_t> body_;
  std::size_t at_ = 0;
  int levels_ = 0;
  std::vector<FieldPlace> places_;
};

}  // namespace

std::optional<std::vector<FieldPlace>> placesOfFields(const RecordSchema& schema, std::span<const std::uint8_t> body) {
  PlaceFinder finder(body);
  try {
    finder.readRecord(schema, "");
  } catch (const WrongBody&) {
    return std::nullopt;
  }
  return std::move(finder).take();
}

}  // namespace Tessel
