#pragma once
#include <herald/messages/info_objects/LayoutOperations.h>
#include <herald/messages/info_objects/WireRecord.h>

// Included by the source files of records only: each record's operations are compiled once, in its own source file.

namespace Tessel {

template <class Self, class Base>
bool ReadableRecord<Self, Base>::read(ByteStream& in) {
  return readLayout(static_cast<Self&>(*this), in);
}

template <class Self, class Base>
ReadableObjectInfo* ReadableRecord<Self, Base>::clone() const {
  return new Self(static_cast<const Self&>(*this));
}

template <class Self, class Base>
int ReadableRecord<Self, Base>::size() const {
  return sizeOfLayout(static_cast<const Self&>(*this));
}

template <class Self, class Base>
void ReadableRecord<Self, Base>::describe(FieldSink& sink) const {
  describeLayout(static_cast<const Self&>(*this), sink);
}

template <class Self, class Base>
bool ReadableWritableRecord<Self, Base>::write(ByteStream& out) const {
  return writeLayout(static_cast<const Self&>(*this), out);
}

template <class Self>
bool WritableRecord<Self>::write(ByteStream& out) const {
  return writeLayout(static_cast<const Self&>(*this), out);
}

template <class Self>
int WritableRecord<Self>::size() const {
  return sizeOfLayout(static_cast<const Self&>(*this));
}

template <class Self>
void WritableRecord<Self>::describe(FieldSink& sink) const {
  describeLayout(static_cast<const Self&>(*this), sink);
}

template <class Self>
bool PlainRecord<Self>::read(ByteStream& in) {
  return readLayout(static_cast<Self&>(*this), in);
}

template <class Self>
int PlainRecord<Self>::size() const {
  return sizeOfLayout(static_cast<const Self&>(*this));
}

template <class Self>
void PlainRecord<Self>::describe(FieldSink& sink) const {
  describeLayout(static_cast<const Self&>(*this), sink);
}

}  // namespace Tessel
