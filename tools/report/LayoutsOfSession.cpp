#include "LayoutsOfSession.h"

#include "PackedPackets.h"

namespace Tessel {

namespace {

constexpr const char* nameOf(FieldKind kind) {
  constexpr const char* NAMES[] = {"number", "text", "record", "list"};
  return NAMES[static_cast<std::size_t>(kind)];
}

}  // namespace

void LayoutsOfSession::add(const Packet& packet) {
  const auto [row, isNew] = classes_.try_emplace({packet.direction, packet.id});
  if (!isNew) return;
  const RecordSchema* layout = layoutOf(packet);
  row->second = {static_cast<int>(packet.direction), packet.id, classOf(packet),
                 layout != nullptr ? nlohmann::json(indexOf(*layout)) : nlohmann::json()};
}

nlohmann::json LayoutsOfSession::toJson() const {
  nlohmann::json classes = nlohmann::json::array();
  for (const auto& [id, row] : classes_) classes.push_back(row);
  return {{"classes", std::move(classes)}, {"layouts", layouts_}};
}

// Records may hold themselves, so the index is known before the fields are.
std::size_t LayoutsOfSession::indexOf(const RecordSchema& record) {
  const auto [known, isNew] = indexes_.try_emplace(&record, layouts_.size());
  const std::size_t index = known->second;
  if (!isNew) return index;
  layouts_.emplace_back();
  nlohmann::json fields = nlohmann::json::array();
  for (const FieldSchema& field : record.fields) fields.push_back(toJson(field));
  layouts_[index] = {{"name", record.name}, {"fields", std::move(fields)}};
  return index;
}

nlohmann::json LayoutsOfSession::toJson(const FieldSchema& field) {
  nlohmann::json json{{"name", field.name}, {"kind", nameOf(field.kind)}};
  if (field.type != WireType::NONE) json["type"] = Tessel::nameOf(field.type);
  if (field.isSecret) json["secret"] = true;
  for (const auto& [value, name] : field.valueNames) json["values"][std::to_string(value)] = name;
  // As texts, because a browser's numbers have no 64 bits.
  if (field.condition)
    json["when"] = {field.condition->field, std::to_string(field.condition->mask),
                    std::to_string(field.condition->first), std::to_string(field.condition->last)};
  if (field.record != nullptr) json["layout"] = indexOf(*field.record);
  for (const FieldSchema& item : field.items) json["items"].push_back(toJson(item));
  if (field.countField) json["count"] = *field.countField;
  if (field.tagField) json["tag"] = *field.tagField;
  return json;
}

}  // namespace Tessel
