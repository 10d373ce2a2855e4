#pragma once
#include <herald/wire/EnumeratorNames.h>
#include <herald/wire/FieldSink.h>
#include <herald/wire/LayoutVisitor.h>

namespace Tessel {

/// Tells a sink the fields of a layout.
class FieldDescriber : public LayoutVisitor<FieldDescriber> {
 public:
  /// `outerName` is the name of the field that holds a transparent layout.
  explicit FieldDescriber(FieldSink& sink, std::string_view outerName = "value") : sink_(sink), outerName_(outerName) {}

  template <class Enumeration, WireNumber T>
  void named(std::string_view name, const T& number) {
    using Names = EnumeratorNames<Enumeration>;
    if (sink_.wantsLayout()) sink_.valuesNamed(Names::FIRST, Names::all());
    sink_.namedNumber(nameOf(name), WIRE_TYPE_OF<T>, number, Names::of(number));
  }

 private:
  friend LayoutVisitor;

  template <class T>
  void field(std::string_view name, const T& value) {
    item(nameOf(name), value);
  }

  template <class T>
  void secretText(std::string_view name, const T& text) {
    sink_.text(name, text.getUTF8(), true);
  }

  template <class Count, class List>
  void list(std::string_view name, std::int64_t count, const List& list) {
    tellList(name, WIRE_TYPE_OF<Count>, count, list);
  }

  template <class List>
  void itemsOf(std::string_view name, const List& list, const CountFrom& count) {
    if (sink_.wantsLayout()) sink_.countedBy(count.field);
    tellList(name, WireType::NONE, static_cast<std::int64_t>(list.size()), list);
  }

  bool enter(const Condition& condition) {
    if (sink_.wantsLayout()) sink_.underCondition(condition);
    sink_.beginConditional(condition);
    return condition || sink_.wantsLayout();
  }
  void leave() { sink_.endConditional(); }

  std::string_view nameOf(std::string_view name) const { return name.empty() ? outerName_ : name; }

  template <class List>
  void tellList(std::string_view name, WireType countType, std::int64_t count, const List& list) {
    using Item = typename List::value_type;
    sink_.beginList(nameOf(name), countType, count);
    if (sink_.wantsLayout()) {
      item("", Item());
    } else {
      for (const auto& element : list) item<Item>("", element);
    }
    sink_.endList();
  }

  template <class T>
  void item(std::string_view name, const T& value) {
    if constexpr (WireNumber<T>) {
      sink_.number(name, WIRE_TYPE_OF<T>, static_cast<std::int64_t>(value));
    } else if constexpr (WireText<T>) {
      sink_.text(name, value.getUTF8(), false);
    } else if constexpr (TransparentLayout<T>) {
      FieldDescriber inner(sink_, name);
      T::wire(value, inner);
    } else {
      if (sink_.beginRecord(name, recordName<T>())) tellRecord(value);
      sink_.endRecord();
    }
  }

  template <class T>
  void tellRecord(const T& record) {
    if constexpr (requires { record.describe(sink_); })
      record.T::describe(sink_);
    else
      T::wire(record, *this);
  }

  FieldSink& sink_;
  std::string_view outerName_;
};

}  // namespace Tessel
