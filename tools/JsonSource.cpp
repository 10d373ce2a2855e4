#include "JsonSource.h"

#include <algorithm>
#include <limits>

namespace Tessel {

namespace {

using Json = nlohmann::json;

bool fitsInt64(const Json& number) {
  return !number.is_number_unsigned()
         || number.get<std::uint64_t>() <= static_cast<std::uint64_t>(std::numeric_limits<std::int64_t>::max());
}

}  // namespace

JsonSource::JsonSource(const Json& object) : open_{{.value = &object, .asked = {"class"}}} {}

FieldValue JsonSource::find(std::string_view name) {
  Scope& scope = open_.back();
  scope.asked.push_back(name);
  const auto member = scope.value->find(name);
  return member != scope.value->end() ? answer(*member) : FieldValue();
}

FieldValue JsonSource::next() {
  Scope& scope = open_.back();
  return scope.nextItem < scope.value->size() ? answer((*scope.value)[scope.nextItem++]) : FieldValue();
}

void JsonSource::enter() { open_.push_back({.value = last_}); }

std::string JsonSource::leave() {
  const Scope scope = std::move(open_.back());
  open_.pop_back();
  if (!scope.value->is_object()) return {};
  for (const auto& [name, value] : scope.value->items())
    if (std::ranges::find(scope.asked, name) == scope.asked.end()) return name;
  return {};
}

FieldValue JsonSource::answer(const Json& value) {
  last_ = &value;
  switch (value.type()) {
    case Json::value_t::boolean:
      return {.kind = FieldValue::Kind::FLAG, .number = value.get<bool>() ? 1 : 0};
    case Json::value_t::string:
      return {.kind = FieldValue::Kind::TEXT, .text = value.get_ref<const std::string&>()};
    case Json::value_t::object:
      return {.kind = FieldValue::Kind::RECORD};
    case Json::value_t::array:
      return {.kind = FieldValue::Kind::LIST, .number = static_cast<std::int64_t>(value.size())};
    case Json::value_t::number_integer:
    case Json::value_t::number_unsigned:
      if (fitsInt64(value)) return {.kind = FieldValue::Kind::NUMBER, .number = value.get<std::int64_t>()};
      break;
    default:
      break;
  }
  spelling_ = value.dump();
  return {.kind = FieldValue::Kind::OTHER, .text = spelling_};
}

}  // namespace Tessel
