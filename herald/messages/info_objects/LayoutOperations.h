#pragma once
#include <herald/messages/info_objects/TsString.h>
#include <herald/platform/keystone/Format.h>
#include <herald/wire/FieldDescriber.h>
#include <herald/wire/WireReader.h>
#include <herald/wire/WireSizer.h>
#include <herald/wire/WireWriter.h>

namespace Tessel {

template <class Statements>
HERALD_OUT_OF_LINE bool readByTheRules(ByteStream& in, StraightReadEnded ended, Statements statements) {
  WireReader reader(in, ended);
  statements(reader);
  return reader.succeeded();
}

/// Reads the fields that `statements` name to a reader: straight on as far as that goes, then by the rules.
/// `smallest` is the size of their smallest form; `memory` is a message's, or null.
template <class Statements>
HERALD_FLATTEN inline bool readFields(ByteStream& in, MessageMemory* memory, std::size_t smallest,
                                      Statements statements) {
  StraightReadEnded ended{0, true};
  const std::span<const std::uint8_t> unread = in.unread();
  if (smallest > 0 && unread.size() >= smallest) [[likely]] {
    try {
      StraightReader<> reader(in, memory, unread.data(), unread.data() + unread.size(), smallest);
      statements(reader);
      reader.finish();
      return true;
    } catch (const StraightReadEnded& caught) {
      ended = caught;
    }
  }
  return readByTheRules(in, ended, statements);
}

template <class Layout>
inline bool readLayout(Layout& layout, ByteStream& in, MessageMemory* memory = nullptr) {
  return readFields(in, memory, minimumWireSize<Layout>(), [&](auto& fields) { Layout::wire(layout, fields); });
}

template <class Layout>
inline std::size_t wireSizeOf(const Layout& layout) {
  WireSizer sizer;
  Layout::wire(layout, sizer);
  return sizer.size();
}

template <class Layout>
inline int sizeOfLayout(const Layout& layout) {
  return static_cast<int>(wireSizeOf(layout));
}

/// All of the layout, or nothing.
template <class Layout>
inline bool writeLayout(const Layout& layout, ByteStream& out) {
  const std::size_t size = wireSizeOf(layout);
  WireWriter writer(out.prepare(size + WireWriter::SLACK));
  Layout::wire(layout, writer);
  if (writer.succeeded()) out.commit(size);
  return writer.succeeded();
}

template <class Layout>
inline void describeLayout(const Layout& layout, FieldSink& sink) {
  FieldDescriber describer(sink);
  Layout::wire(layout, describer);
}

}  // namespace Tessel
