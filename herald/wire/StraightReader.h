#pragma once
#include <herald/platform/keystone/ByteStream.h>
#include <herald/platform/keystone/List.h>
#include <herald/platform/keystone/TsArray.h>
#include <herald/platform/keystone/UTFEncoder.h>
#include <herald/wire/Inlining.h>
#include <herald/wire/MessageMemory.h>
#include <herald/wire/Text.h>
#include <herald/wire/WireSizer.h>
#include <herald/wire/WireTypes.h>

#include <cassert>
#include <vector>

namespace Tessel {

/// Thrown where a layout cannot be read straight on: how many of its fields have been read whole, and whether the read
/// of the last one has failed. The stream stands behind them.
struct StraightReadEnded {
  unsigned fieldsRead;
  bool succeeded;
};

// The room of a list that is read: in the message's memory where there is one.

template <class T>
List<T>& storageOf(List<T>& list) {
  return list;
}
template <class T>
List<T>& storageOf(TsArray<T>& array) {
  return array.items();
}
template <class T>
std::vector<T>& storageOf(std::vector<T>& list) {
  return list;
}

template <class T>
void makeRoom(List<T>& list, std::size_t count, MessageMemory* memory, std::size_t bytesToCome) {
  static_assert(alignof(T) <= MessageMemory::ALIGNMENT);
  if (memory != nullptr) {
    list.borrow(memory->take(count * sizeof(T), bytesToCome), count);
  } else {
    list.clear();
    list.reserve(count);
  }
}
template <class T>
void makeRoom(std::vector<T>& list, std::size_t count, MessageMemory*, std::size_t) {
  list.clear();
  list.reserve(count);
}

template <class T>
T& append(List<T>& list) {
  return list.append();
}
template <class T>
T& append(std::vector<T>& list) {
  return list.emplace_back();
}

/// Answers whether the list need not be destroyed.
template <class T>
bool settle(List<T>& list, bool holdsOutside) {
  if (!holdsOutside) list.settle();
  return list.isSettled();
}
template <class T>
bool settle(std::vector<T>&, bool) {
  return false;
}

/// Reads a layout whose bytes are all there and in order, which is nearly every one: it keeps its place in registers,
/// tests once that the smallest form of all that is to come is there, and then reads each number without a test. A
/// field that is not as it should be, and what to make of it, is none of its business: it throws `StraightReadEnded`
/// before it has changed anything that the field's own rule would not, and `WireReader` takes over at that field.
///
/// It relies on a layout's statements being the same ones for every object: a field that may be missing says so by
/// `onlyIf` or `itemsIf`.
template <bool IN_LIST = false>
class StraightReader {
  template <bool>
  friend class StraightReader;

 public:
  /// Where the reader of a list's item sends back to: the list.
  struct Return {
    unsigned fieldsRead = 0;
    const std::uint8_t* at = nullptr;
  };

  HERALD_IN_LINE StraightReader(ByteStream& in, MessageMemory* memory, const std::uint8_t* at, const std::uint8_t* end,
                                std::size_t promised, Return whenItEnds = {})
      : in_(in), memory_(memory), at_(at), end_(end), promised_(promised), return_(whenItEnds) {}

  const std::uint8_t* at() const { return at_; }
  /// Moves the stream behind what was read.
  HERALD_IN_LINE void finish() { putBack(at_); }
  /// Whether something was read that may have taken memory outside the message's.
  bool heldOutside() const { return heldOutside_; }
  static constexpr bool succeeded() { return true; }

  template <class T>
  HERALD_IN_LINE void operator()(const char*, T& field) {
    read(field);
  }
  template <class Enumeration, WireNumber T>
  HERALD_IN_LINE void named(const char* name, T& number) {
    (*this)(name, number);
  }
  template <class T>
  HERALD_IN_LINE void ignoring(const char*, T& record) {
    read(record);
  }
  template <WireText T>
  HERALD_IN_LINE void required(const char*, T& text) {
    readText(text);
  }
  template <WireText T>
  HERALD_IN_LINE void always(const char*, T& text) {
    read(text);
  }
  template <WireText T>
  HERALD_IN_LINE void secret(const char*, T& text) {
    read(text);
  }
  template <class T>
  HERALD_IN_LINE void onlyIf(bool present, const char*, T& field) {
    if (!present) return;
    begin();
    const std::size_t more = minimumWireSize<T>();
    want(promised_ + more);
    promised_ += more;
    read(field);
  }

  template <WireNumber Count, class Items>
  HERALD_IN_LINE void counted(const char*, Items& list) {
    begin();
    const Count count = take<Count>();
    if (count < 0) giveUp();
    readItems(list, count);
    done();
  }
  template <WireNumber Count, class Items>
  HERALD_IN_LINE void countedOrNone(const char*, Items& list) {
    begin();
    readItems(list, take<Count>());
    done();
  }
  template <WireNumber Count, class Items>
  HERALD_IN_LINE void countedKeeping(const char*, Count& kept, Items& list) {
    begin();
    const Count count = take<Count>();
    readItems(list, count);
    kept = count;
    done();
  }
  template <WireNumber Count, class Items>
  HERALD_IN_LINE void infoArray(const char* name, Items& list) {
    countedOrNone<Count>(name, list);
  }
  template <WireNumber Count, class Items>
  HERALD_IN_LINE void infoArrayKeeping(const char* name, Count& count, Items& list) {
    countedKeeping<Count>(name, count, list);
  }
  template <class Items>
  HERALD_IN_LINE void items(const char*, Items& list, std::int32_t count) {
    begin();
    readItems(list, count);
    done();
  }
  template <class Items>
  HERALD_IN_LINE void itemsIf(bool present, const char* name, Items& list, std::int32_t count) {
    items(name, list, present ? count : 0);
  }

  template <class Self, class Rule>
  HERALD_IN_LINE void onRead(Self& self, Rule rule) {
    begin();
    heldOutside_ = true;
    if (!appliesTo(self, rule)) {
      done();
      fail();
    }
    done();
  }

  HERALD_IN_LINE void requireMore() {
    begin();
    if (at_ == end_) giveUp();
  }
  HERALD_IN_LINE bool hasMore() {
    putBack(at_);
    return at_ != end_;
  }

  template <class T>
  HERALD_IN_LINE void read(T& field) {
    if constexpr (WireNumber<T>) {
      begin();
      field = take<T>();
      done();
    } else if constexpr (WireText<T>) {
      readText(field);
    } else if constexpr (WireLayout<T>) {
      T::wire(field, *this);
    } else {
      if (!readByHand(field)) fail();
    }
  }

 private:
  std::size_t left() const { return static_cast<std::size_t>(end_ - at_); }

  HERALD_IN_LINE void want(std::size_t count) {
    if (left() < count) [[unlikely]]
      giveUp();
  }

  // A field begins, and has been read whole.
  HERALD_IN_LINE void begin() {
    if constexpr (!IN_LIST) return_.at = at_;
  }
  HERALD_IN_LINE void done() {
    if constexpr (!IN_LIST) ++return_.fieldsRead;
  }

  // The field that began, or what comes next, is not as it should be.
  [[noreturn]] HERALD_IN_LINE void giveUp() { sendBack(in_, return_, true); }
  // The field that was read has failed by its own rule. In a list, that is for the list to judge.
  [[noreturn]] HERALD_IN_LINE void fail() {
    if constexpr (!IN_LIST) return_.at = at_;
    sendBack(in_, return_, IN_LIST);
  }
  // A function of values, so that the reader itself can stay in registers.
  [[noreturn]] HERALD_OUT_OF_LINE static void sendBack(ByteStream& in, Return whereItEnds, bool succeeded) {
    in.seek(static_cast<std::size_t>(whereItEnds.at - in.bytes().data()));
    throw StraightReadEnded{whereItEnds.fieldsRead, succeeded};
  }

  HERALD_IN_LINE void putBack(const std::uint8_t* at) { in_.seek(static_cast<std::size_t>(at - in_.bytes().data())); }

  template <WireNumber T>
  HERALD_IN_LINE T take() {
    assert(promised_ >= sizeof(T));
    promised_ -= sizeof(T);
    const std::uint8_t* const from = std::exchange(at_, at_ + sizeof(T));
    return numberAt<T>(from);
  }

  template <WireNumber T>
  HERALD_IN_LINE static T numberAt(const std::uint8_t* from) {
    if constexpr (std::same_as<T, bool>)
      return *from != 0;
    else
      return static_cast<T>(BigEndian<std::make_unsigned_t<T>>::load(from));
  }

  // One test says that the text and the smallest form of what follows are there, another that all that a short text
  // looks at is.
  HERALD_IN_LINE void readText(Text& text) {
    const std::size_t size = beginText();
    const bool isTaken = size <= Text::MAX_SHORT && left() > Text::MAX_SHORT && text.takeShortAscii(at_, size);
    if (!isTaken) {
      const std::string_view utf8 = textAt(at_, size);
      if (!UTFEncoder::isValid(utf8)) giveUp();
      text.take(utf8, memory_, left() - size);
    }
    at_ += size;
    done();
  }

  template <WireText T>
  HERALD_IN_LINE void readText(T& text) {
    const std::size_t size = beginText();
    const std::string_view utf8 = textAt(at_, size);
    if (!UTFEncoder::isValid(utf8)) giveUp();
    text.take(utf8);
    heldOutside_ = true;
    at_ += size;
    done();
  }

  // The number of bytes of the text, before which the reader stands then.
  HERALD_IN_LINE std::size_t beginText() {
    begin();
    const std::size_t size = static_cast<std::uint16_t>(take<std::int16_t>());
    want(size + promised_);
    return size;
  }

  static std::string_view textAt(const std::uint8_t* bytes, std::size_t size) {
    return {reinterpret_cast<const char*>(bytes), size};
  }

  template <class T>
  HERALD_IN_LINE bool readByHand(T& field) {
    begin();
    promised_ -= minimumWireSize<T>();
    heldOutside_ = true;
    putBack(at_);
    const bool isRead = readItself(field, in_, memory_);
    at_ = in_.unread().data();
    done();
    begin();
    want(promised_);
    return isRead;
  }

  template <class T>
  static bool readItself(T& field, ByteStream& in, MessageMemory* memory) {
    if constexpr (requires { field.readIn(in, memory); })
      return field.readIn(in, memory);
    else
      return field.T::read(in);
  }

  struct ItemsRead {
    const std::uint8_t* at;
    bool heldOutside;
  };

  template <class Self, class Rule>
  HERALD_IN_LINE bool appliesTo(Self& self, Rule rule) {
    try {
      return (self.*rule)();
    } catch (...) {
      putBack(at_);
      throw;
    }
  }

  template <class Items>
  HERALD_IN_LINE void readItems(Items& list, std::int64_t count) {
    if (count > 0) {
      const ItemsRead read = readItems(list, static_cast<std::size_t>(count), in_, memory_, at_, end_, return_);
      at_ = read.at;
      heldOutside_ = heldOutside_ || read.heldOutside;
    } else {
      list.clear();
    }
    want(promised_);
  }

  template <class Items>
  HERALD_OUT_OF_LINE HERALD_FLATTEN static ItemsRead readItems(Items& items, std::size_t count, ByteStream& in,
                                                               MessageMemory* memory, const std::uint8_t* at,
                                                               const std::uint8_t* end, Return whenItEnds) {
    using Item = typename Items::value_type;
    const std::size_t smallest = minimumWireSize<Item>();
    const auto left = static_cast<std::size_t>(end - at);
    if (smallest == 0 || count > left / smallest) sendBack(in, whenItEnds, true);
    auto& list = storageOf(items);
    makeRoom(list, count, memory, left - count * smallest);
    bool heldOutside = false;
    if constexpr (WireNumber<Item>) {
      for (std::size_t i = 0; i < count; ++i, at += sizeof(Item)) append(list) = numberAt<Item>(at);
      settle(list, false);
      return {at, false};
    }
    for (std::size_t i = 0; i < count; ++i) {
      StraightReader<true> reader(in, memory, at, end, smallest, {whenItEnds.fieldsRead, whenItEnds.at});
      reader.want(smallest);
      reader.read(append(list));
      at = reader.at();
      heldOutside = heldOutside || reader.heldOutside();
    }
    if (!settle(list, heldOutside)) heldOutside = true;
    return {at, heldOutside};
  }

  ByteStream& in_;
  MessageMemory* memory_;
  const std::uint8_t* at_;
  const std::uint8_t* end_;
  std::size_t promised_;
  Return return_;
  bool heldOutside_ = false;
};

}  // namespace Tessel
