#include <herald/messages/info_objects/CreditInfo.h>
#include <herald/messages/info_objects/InfoVector.h>
#include <herald/messages/info_objects/PGSettingsInfo.h>
#include <herald/messages/info_objects/PokerGameInfo.h>
#include <herald/messages/info_objects/RecordIndex.h>
#include <herald/messages/info_objects/TournamentLobbyPlayerInfo.h>
#include <herald/messages/info_objects/TournamentLobbyTableInfo.h>
#include <herald/messages/info_objects/TreeNodeInfo.h>
#include <herald/messages/info_objects/VIPPlayerInfo.h>
#include <herald/platform/keystone/ByteStream.h>
#include <herald/platform/keystone/Exceptions.h>
#include <herald/platform/keystone/TypeName.h>
#include <herald/platform/keystone/UTFEncoder.h>
#include <herald/wire/FieldSink.h>

#include <utility>

namespace Tessel {

namespace {

constexpr const wchar_t* FILE_NAME = L"messages/info_objects/InfoVector";

template <class Record>
ReadableObjectInfo* create() {
  return new Record;
}

struct ElementClass {
  std::wstring_view typeString;
  ReadableObjectInfo* (*create)();
};

constexpr ElementClass ELEMENT_CLASSES[] = {
    {InfoVector::CreditInfotypeString, create<CreditInfo>},
    {InfoVector::PokerGameInfoTypeString, create<PokerGameInfo>},
    {InfoVector::PGSettingsInfoTypeString, create<PGSettingsInfo>},
    {InfoVector::TournamentLobbyPlayerInfoTypeString, create<TournamentLobbyPlayerInfo>},
    {InfoVector::TournamentLobbyTableInfoTypeString, create<TournamentLobbyTableInfo>},
    {InfoVector::VIPPlayerInfoTypeString, create<VIPPlayerInfo>},
    {InfoVector::TreeNodeInfoTypeString, create<TreeNodeInfo>},
};

void describeElement(std::string_view name, const ReadableObjectInfo& element, FieldSink& sink) {
  if (sink.beginRecord(name, classNameOf(typeid(element)))) element.describe(sink);
  sink.endRecord();
}

}  // namespace

ReadableObjectInfo* InfoVector::javaClassToObjectInfo(const TsString& type) {
  const std::wstring typeString = type.getString();
  for (const ElementClass& row : ELEMENT_CLASSES) {
    if (row.typeString == typeString) return row.create();
  }
  throw KeystoneException(FILE_NAME, __LINE__, L"Unknown info object type.");
}

bool InfoVector::read(ByteStream& in) {
  std::int32_t count = 0;
  in >> count;
  typeString_.read(in);
  for (std::int32_t i = 0; i < count; ++i) {
    ClonePointer<ReadableObjectInfo> element(std::unique_ptr<ReadableObjectInfo>(javaClassToObjectInfo(typeString_)));
    if (!element->read(in)) return false;
    elements_.push_back(std::move(element));
  }
  return true;
}

ReadableObjectInfo* InfoVector::clone() const { return new InfoVector(*this); }

std::wstring InfoVector::toDebugString() const {
  std::wstring text = L"[InfoVector: ";
  for (const auto& element : elements_) text += element->toDebugString();
  return text + L"]";
}

void InfoVector::describe(FieldSink& sink) const {
  sink.number("count", WireType::INT, size());
  sink.text("type", typeString_.getUTF8(), false);
  if (sink.wantsLayout()) {
    sink.countedBy("count");
    sink.taggedBy("type");
  }
  sink.beginList("elements", WireType::NONE, size());
  if (sink.wantsLayout()) {
    for (const ElementClass& row : ELEMENT_CLASSES)
      describeElement(UTFEncoder::toUTF8(row.typeString), *std::unique_ptr<ReadableObjectInfo>(row.create()), sink);
  }
  for (const auto& element : elements_) describeElement("", *element, sink);
  sink.endList();
}

const ReadableObjectInfo& InfoVector::operator[](int i) const {
  checkRecordIndex(FILE_NAME, i, size());
  return *elements_[static_cast<std::size_t>(i)];
}

}  // namespace Tessel
