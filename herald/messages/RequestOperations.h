#pragma once
#include <herald/messages/BodyOperations.h>
#include <herald/messages/RequestFrame.h>
#include <herald/messages/WireRequest.h>
#include <herald/platform/keystone/Exceptions.h>

namespace Tessel {

/// Appends the frame around a layout: all of it, or nothing.
template <class Layout>
inline bool writeFrame(short id, const Layout& layout, ByteStream& out) {
  WireSizer sizer;
  sizer("body", layout);
  if (sizer.size() > MAX_BODY_SIZE) [[unlikely]] {
    reportBodyTooLong(sizer.size());
    return false;
  }
  const std::size_t size = FRAME_HEADER_SIZE + sizer.size();
  WireWriter writer(out.prepare(size + WireWriter::SLACK));
  writer("id", std::int16_t{id});
  writer("size", static_cast<std::int16_t>(sizer.size()));
  writer("body", layout);
  if (writer.succeeded()) out.commit(size);
  return writer.succeeded();
}

template <class Self, short REQUEST_ID>
bool EmptyRequest<Self, REQUEST_ID>::write(ByteStream& out) const {
  out << REQUEST_ID << std::int16_t{0};
  return true;
}

template <class Self, short REQUEST_ID>
std::wstring EmptyRequest<Self, REQUEST_ID>::toDebugString() const {
  return Self::TEXT;
}

template <class Self, short REQUEST_ID>
void EmptyRequest<Self, REQUEST_ID>::describe(FieldSink&) const {}

template <class Self, short REQUEST_ID, class Record>
bool RecordRequest<Self, REQUEST_ID, Record>::write(ByteStream& out) const {
  return writeFrame(REQUEST_ID, body_, out);
}

template <class Self, short REQUEST_ID, class Record>
std::wstring RecordRequest<Self, REQUEST_ID, Record>::toDebugString() const {
  return textAround<Self>(body_);
}

template <class Self, short REQUEST_ID, class Record>
void RecordRequest<Self, REQUEST_ID, Record>::describe(FieldSink& sink) const {
  describeLayout(static_cast<const Self&>(*this), sink);
}

template <class Self, short REQUEST_ID>
bool WireRequest<Self, REQUEST_ID>::write(ByteStream& out) const {
  return writeFrame(REQUEST_ID, static_cast<const Self&>(*this), out);
}

template <class Self, short REQUEST_ID>
void WireRequest<Self, REQUEST_ID>::describe(FieldSink& sink) const {
  describeLayout(static_cast<const Self&>(*this), sink);
}

template <class Self, short REQUEST_ID>
void ImprovedRequest<Self, REQUEST_ID>::writeBody(ByteStream& out) const {
  if (!writeLayout(static_cast<const Self&>(*this), out)) throw UnwritableBody();
}

template <class Self, short REQUEST_ID>
short ImprovedRequest<Self, REQUEST_ID>::getPacketDescriptor() const {
  return REQUEST_ID;
}

template <class Self, short REQUEST_ID>
void ImprovedRequest<Self, REQUEST_ID>::describe(FieldSink& sink) const {
  describeLayout(static_cast<const Self&>(*this), sink);
}

}  // namespace Tessel
