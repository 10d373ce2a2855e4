#pragma once
#include <herald/wire/Condition.h>
#include <herald/wire/WireTypes.h>

#include <cstdint>
#include <string_view>

namespace Tessel {

/// The base of those that look at a layout without changing it: what only reading tells apart comes down to a field, a
/// list, and a condition. A Visitor has the operations `field`, `secretText`, `list` and `itemsOf`, and `enter` and
/// `leave` around what travels under a condition.
template <class Visitor>
class LayoutVisitor {
 public:
  template <class T>
  void operator()(std::string_view name, const T& field) {
    self().field(name, field);
  }
  template <class Enumeration, WireNumber T>
  void named(std::string_view name, const T& number) {
    self().field(name, number);
  }
  template <class T>
  void ignoring(std::string_view name, const T& record) {
    self().field(name, record);
  }
  template <WireText T>
  void required(std::string_view name, const T& text) {
    self().field(name, text);
  }
  template <WireText T>
  void secret(std::string_view name, const T& text) {
    self().secretText(name, text);
  }
  template <WireText T>
  void always(std::string_view name, const T& text) {
    self().field(name, text);
  }
  template <class T>
  void onlyIf(const Condition& condition, std::string_view name, const T& field) {
    if (self().enter(condition)) self().field(name, field);
    self().leave();
  }

  template <WireNumber Count, class List>
  void counted(std::string_view name, const List& list) {
    self().template list<Count>(name, static_cast<std::int64_t>(list.size()), list);
  }
  template <WireNumber Count, class List>
  void countedOrNone(std::string_view name, const List& list) {
    counted<Count>(name, list);
  }
  template <WireNumber Count, class List>
  void infoArray(std::string_view name, const List& list) {
    counted<Count>(name, list);
  }
  template <WireNumber Count, class List>
  void infoArrayKeeping(std::string_view name, Count count, const List& list) {
    countedKeeping<Count>(name, count, list);
  }
  template <WireNumber Count, class List>
  void countedKeeping(std::string_view name, Count count, const List& list) {
    self().template list<Count>(name, count, list);
  }
  template <class List>
  void items(std::string_view name, const List& list, const CountFrom& count) {
    self().itemsOf(name, list, count);
  }
  template <class List>
  void itemsIf(const Condition& condition, std::string_view name, const List& list, const CountFrom& count) {
    if (self().enter(condition)) self().itemsOf(name, list, count);
    self().leave();
  }

  template <class Self, class Rule>
  void onRead(const Self&, Rule) {}
  void requireMore() {}
  bool hasMore() const { return true; }
  bool succeeded() const { return true; }

 private:
  Visitor& self() { return static_cast<Visitor&>(*this); }
};

}  // namespace Tessel
