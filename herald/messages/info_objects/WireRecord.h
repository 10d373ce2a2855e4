#pragma once
#include <herald/messages/info_objects/ReadableObjectInfo.h>
#include <herald/messages/info_objects/WritableObjectInfo.h>
#include <herald/wire/Condition.h>
#include <herald/wire/WireTypes.h>

// A record declares its fields once:
//
//   class HERALD_API PlayerId : public ReadableWritableRecord<PlayerId> {
//    public:
//     template <class Self, class Fields>
//     static void wire(Self& self, Fields& fields) {
//       fields("id", self.id_);
//       fields("seat", self.seat_);
//     }
//     std::wstring toDebugString() const override;
//
// and the templates below give it `read`, `clone`, `size`, `write` and `describe`. Their bodies are in
// RecordOperations.h, which only the record's own source file includes. What `fields` offers is in
// herald/wire/WireReader.h.

namespace Tessel {

/// The base of a record that is only read.
class HERALD_API ReadableInfo : public ReadableObjectInfo {
 public:
  /// The number of bytes of the record's wire form.
  virtual int size() const = 0;
};

/// The base of a record that travels both ways.
class HERALD_API ReadableWritableInfo : public ReadableObjectInfo, public WritableObjectInfo {
 public:
  std::wstring toDebugString() const override = 0;
  void describe(FieldSink& sink) const override = 0;
};

/// A record that is read. Base is what it extends, another record for instance.
template <class Self, class Base = ReadableInfo>
class HERALD_API ReadableRecord : public Base {
 public:
  using Base::Base;
  bool read(ByteStream& in) override;
  [[nodiscard]] ReadableObjectInfo* clone() const override;
  int size() const override;
  void describe(FieldSink& sink) const override;
};

/// A record that is read and written.
template <class Self, class Base = ReadableWritableInfo>
class HERALD_API ReadableWritableRecord : public ReadableRecord<Self, Base> {
 public:
  using ReadableRecord<Self, Base>::ReadableRecord;
  [[nodiscard]] bool write(ByteStream& out) const override;
};

/// A record that is only written.
template <class Self>
class HERALD_API WritableRecord : public WritableObjectInfo {
 public:
  [[nodiscard]] bool write(ByteStream& out) const override;
  int size() const override;
  void describe(FieldSink& sink) const override;
};

/// A record without the record bases: its operations are ordinary members.
template <class Self>
class HERALD_API PlainRecord {
 public:
  bool read(ByteStream& in);
  int size() const;
  void describe(FieldSink& sink) const;
};

}  // namespace Tessel
