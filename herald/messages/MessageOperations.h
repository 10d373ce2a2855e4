#pragma once
#include <herald/dispatch/AbstractClientMessageHandler.h>
#include <herald/messages/BodyOperations.h>
#include <herald/messages/WireMessage.h>

namespace Tessel {

template <class Self>
bool EmptyMessage<Self>::read(ByteStream&) {
  return true;
}

template <class Self>
void EmptyMessage<Self>::handle(AbstractClientMessageHandler& handler) const {
  handler.handle(static_cast<const Self&>(*this));
}

template <class Self>
std::wstring EmptyMessage<Self>::toDebugString() const {
  return Self::TEXT;
}

template <class Self>
void EmptyMessage<Self>::describe(FieldSink&) const {}

template <class Self, class Record, ReadResult RESULT>
bool RecordMessage<Self, Record, RESULT>::read(ByteStream& in) {
  const bool isRead = readFields(in, this->memoryToReadInto(), minimumWireSize<Record>(),
                                 [this](auto& fields) { fields("body", body_); });
  return RESULT == ReadResult::ALWAYS_TRUE || isRead;
}

template <class Self, class Record, ReadResult RESULT>
void RecordMessage<Self, Record, RESULT>::handle(AbstractClientMessageHandler& handler) const {
  handler.handle(static_cast<const Self&>(*this));
}

template <class Self, class Record, ReadResult RESULT>
std::wstring RecordMessage<Self, Record, RESULT>::toDebugString() const {
  return textAround<Self>(body_);
}

template <class Self, class Record, ReadResult RESULT>
void RecordMessage<Self, Record, RESULT>::describe(FieldSink& sink) const {
  FieldDescriber{sink}(bodyName<Self>(), body_);
}

template <class Self>
bool WireMessage<Self>::read(ByteStream& in) {
  return readLayout(static_cast<Self&>(*this), in, this->memoryToReadInto());
}

template <class Self>
void WireMessage<Self>::handle(AbstractClientMessageHandler& handler) const {
  handler.handle(static_cast<const Self&>(*this));
}

template <class Self>
void WireMessage<Self>::describe(FieldSink& sink) const {
  describeLayout(static_cast<const Self&>(*this), sink);
}

}  // namespace Tessel
