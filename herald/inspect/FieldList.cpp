#include <herald/inspect/FieldList.h>

#include <algorithm>
#include <utility>

namespace Tessel {

namespace {

class ListingSink final : public FieldSink {
 public:
  ListingSink(std::vector<Field>& fields, Secrets secrets) : fields_(fields), secrets_(secrets) {}

  void number(std::string_view name, WireType type, std::int64_t value) override {
    if (type == WireType::BOOL)
      add(name, FieldKind::NUMBER, type, value != 0 ? "true" : "false");
    else
      add(name, FieldKind::NUMBER, type, std::to_string(value));
  }

  void namedNumber(std::string_view name, WireType type, std::int64_t value, std::string_view valueName) override {
    number(name, type, value);
    fields_.back().valueName = valueName;
  }

  void text(std::string_view name, std::string_view utf8, bool secret) override {
    const bool masked = secret && secrets_ == Secrets::MASKED;
    add(name, FieldKind::TEXT, WireType::STRING, std::string(masked ? SECRET_MASK : utf8));
  }

  bool beginRecord(std::string_view name, std::string_view type) override {
    open(name, FieldKind::RECORD, WireType::NONE, std::string(type));
    return true;
  }
  void endRecord() override { open_.pop_back(); }

  void beginList(std::string_view name, WireType countType, std::int64_t count) override {
    open(name, FieldKind::LIST, countType, std::to_string(count));
  }
  void endList() override { open_.pop_back(); }

  void beginConditional(bool) override {}
  void endConditional() override {}

 private:
  struct OpenField {
    std::size_t index = Field::NO_PARENT;
    std::size_t count = 0;
  };

  void add(std::string_view name, FieldKind kind, WireType type, std::string value) {
    OpenField& parent = open_.back();
    std::string ownName = name.empty() ? '[' + std::to_string(parent.count) + ']' : std::string(name);
    ++parent.count;
    fields_.push_back(
        {.name = std::move(ownName), .kind = kind, .type = type, .value = std::move(value), .parent = parent.index});
  }

  void open(std::string_view name, FieldKind kind, WireType type, std::string value) {
    add(name, kind, type, std::move(value));
    open_.push_back({fields_.size() - 1});
  }

  std::vector<Field>& fields_;
  std::vector<OpenField> open_{1};
  Secrets secrets_;
};

}  // namespace

FieldList::FieldList(Inspectable object, Secrets secrets) {
  ListingSink sink(fields_, secrets);
  object.describe(sink);
}

std::string FieldList::pathOf(std::size_t index) const {
  std::vector<const Field*> way;
  for (std::size_t i = index; i != Field::NO_PARENT; i = fields_[i].parent) way.push_back(&fields_[i]);
  std::ranges::reverse(way);
  std::string path;
  for (const Field* field : way) {
    if (!path.empty() && !field->name.starts_with('[')) path += '.';
    path += field->name;
  }
  return path;
}

}  // namespace Tessel
