#pragma once
#include <herald/messages/info_objects/TsString.h>
#include <herald/platform/keystone/Format.h>
#include <herald/wire/FieldDescriber.h>
#include <herald/wire/WireReader.h>
#include <herald/wire/WireSizer.h>
#include <herald/wire/WireWriter.h>

namespace Tessel {

template <class Layout>
bool readLayout(Layout& layout, ByteStream& in) {
  WireReader reader(in);
  Layout::wire(layout, reader);
  return reader.succeeded();
}

template <class Layout>
bool writeLayout(const Layout& layout, ByteStream& out) {
  WireWriter writer(out);
  Layout::wire(layout, writer);
  return writer.succeeded();
}

template <class Layout>
int sizeOfLayout(const Layout& layout) {
  WireSizer sizer;
  Layout::wire(layout, sizer);
  return static_cast<int>(sizer.size());
}

template <class Layout>
void describeLayout(const Layout& layout, FieldSink& sink) {
  FieldDescriber describer(sink);
  Layout::wire(layout, describer);
}

}  // namespace Tessel
