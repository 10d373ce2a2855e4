#pragma once
#include <herald/platform/keystone/ByteStream.h>
#include <herald/wire/StraightReader.h>
#include <herald/wire/WireSizer.h>
#include <herald/wire/WireTypes.h>

#include <stdexcept>

namespace Tessel {

/// An array record failed to read: throws `KeystoneException` "Failed to read info object.".
[[noreturn]] HERALD_API void throwInfoObjectFailed();
[[noreturn]] HERALD_API void throwCountPastEnd(std::int64_t count, std::size_t unread);
[[noreturn]] HERALD_API void throwNegativeCount(std::int64_t count);

/// Reads a layout from a stream field by field, by the rules that are stated here. Once a field has failed, the fields
/// after it are passed over and keep their values.
class WireReader {
 public:
  explicit WireReader(ByteStream& in) : in_(in) {}
  /// Goes on where a straight read has ended.
  WireReader(ByteStream& in, StraightReadEnded before)
      : in_(in), fieldsToPass_(before.fieldsRead), succeededBefore_(before.succeeded) {
    if (fieldsToPass_ == 0) succeeded_ = succeededBefore_;
  }

  /// Whether every field so far could be read.
  bool succeeded() const { return succeeded_; }

  /// A number; a record, whose own failure is the layout's; or a text, whose failure has been reported and does not
  /// count.
  template <class T>
  void operator()(const char*, T& field) {
    if (succeeded_) read(field);
  }

  /// A number whose values have the names of an enumeration.
  template <class Enumeration, WireNumber T>
  void named(const char* name, T& number) {
    (*this)(name, number);
  }

  /// A record whose own failure does not count.
  template <class T>
  void ignoring(const char*, T& record) {
    if (!succeeded_) return;
    read(record);
    succeeded_ = true;
  }

  /// A text without which the record cannot be read.
  template <WireText T>
  void required(const char*, T& text) {
    if (succeeded_ && !isPassed()) succeeded_ = readText(text);
  }

  /// A text that is read also after a field has failed.
  template <WireText T>
  void always(const char*, T& text) {
    if (!isPassed()) readText(text);
  }

  /// A text that is not for logs.
  template <WireText T>
  void secret(const char* name, T& text) {
    (*this)(name, text);
  }

  /// A field that travels only under a condition on fields already read; otherwise it keeps its value.
  template <class T>
  void onlyIf(bool present, const char* name, T& field) {
    if (present) (*this)(name, field);
  }

  /// A count, then that many items, whose own failures do not count. A negative count is an invalid argument.
  template <WireNumber Count, class List>
  void counted(const char*, List& list) {
    if (!succeeded_ || isPassed()) return;
    const Count count = take<Count>();
    if (count < 0) throwNegativeCount(count);
    readItems(list, count);
  }

  /// The same, but a negative count means no items.
  template <WireNumber Count, class List>
  void countedOrNone(const char*, List& list) {
    if (succeeded_ && !isPassed()) readItems(list, take<Count>());
  }

  /// The same, and the count is kept as it came.
  template <WireNumber Count, class List>
  void countedKeeping(const char*, Count& count, List& list) {
    if (!succeeded_ || isPassed()) return;
    count = take<Count>();
    readItems(list, count);
  }

  /// A count, then that many records, all of which must read: one that does not throws "Failed to read info object.". A
  /// negative count means no records.
  template <WireNumber Count, class List>
  void infoArray(const char* name, List& list) {
    Count count = 0;
    infoArrayKeeping<Count>(name, count, list);
  }

  /// The same, and the count is kept as it came.
  template <WireNumber Count, class List>
  void infoArrayKeeping(const char*, Count& count, List& list) {
    if (!succeeded_ || isPassed()) return;
    count = take<Count>();
    readEach(list, count, [this](auto& record) {
      read(record);
      if (!succeeded_) throwInfoObjectFailed();
    });
  }

  /// Items without a count of their own: an earlier field says how many. None when that is negative.
  template <class List>
  void items(const char*, List& list, std::int32_t count) {
    if (succeeded_ && !isPassed()) readItems(list, count);
  }

  /// The same, for items that travel only under a condition on fields already read.
  template <class List>
  void itemsIf(bool present, const char* name, List& list, std::int32_t count) {
    items(name, list, present ? count : 0);
  }

  /// A rule that only reading applies: an operation of the record that answers whether the read goes on.
  template <class Self, class Rule>
  void onRead(Self& self, Rule rule) {
    if (succeeded_ && !isPassed()) succeeded_ = (self.*rule)();
  }

  /// The read fails where nothing is left.
  void requireMore() { succeeded_ = succeeded_ && hasMore(); }
  bool hasMore() const { return fieldsToPass_ > 0 || !in_.eos(); }

 private:
  template <WireNumber T>
  T take() {
    T value;
    in_ >> value;
    return value;
  }

  template <class T>
  void read(T& field) {
    if constexpr (WireNumber<T>) {
      if (!isPassed()) in_ >> field;
    } else if constexpr (WireText<T>) {
      if (!isPassed()) readText(field);
    } else if constexpr (WireLayout<T>) {
      T::wire(field, *this);
    } else {
      if (!isPassed()) succeeded_ = field.T::read(in_);
    }
  }

  HERALD_API bool readText(Text& text);
  template <WireText T>
  bool readText(T& text) {
    return text.T::read(in_);
  }

  // Counts the fields as a straight reader does.
  bool isPassed() {
    if (fieldsToPass_ == 0) return false;
    if (--fieldsToPass_ == 0) succeeded_ = succeededBefore_;
    return true;
  }

  template <class List, WireNumber Count>
  void readItems(List& list, Count count) {
    readEach(list, count, [this](auto&& item) {
      if constexpr (std::same_as<typename List::value_type, bool>)
        item = take<bool>();
      else
        read(item);
      succeeded_ = true;
    });
  }

  // What a count claims is held against the bytes that are there before memory is taken for it. What cannot fit throws
  // at once when it would be large; otherwise the list grows with its items, so that the first that is not there ends
  // it (texts that are not there are empty).
  template <class List, WireNumber Count, class ReadItem>
  void readEach(List& list, Count count, ReadItem readItem) {
    using Item = typename List::value_type;
    constexpr std::size_t MODEST_SIZE = 65536;
    list.clear();
    if (count <= 0) return;
    const auto size = static_cast<std::size_t>(std::int64_t{count});
    if (size <= in_.unreadCount() / minimumWireSize<Item>()) {
      resize(list, size);
      for (auto&& item : list) readItem(item);
    } else if (sizeof(Count) > 2 || size * sizeof(Item) > MODEST_SIZE) {
      throwCountPastEnd(count, in_.unreadCount());
    } else {
      while (static_cast<std::size_t>(list.size()) < size) {
        resize(list, static_cast<std::size_t>(list.size()) + 1);
        readItem(*(list.end() - 1));
      }
    }
  }

  template <class List>
  static void resize(List& list, std::size_t size) {
    storageOf(list).resize(size);
  }

  ByteStream& in_;
  unsigned fieldsToPass_ = 0;
  bool succeededBefore_ = true;
  bool succeeded_ = true;
};

}  // namespace Tessel
