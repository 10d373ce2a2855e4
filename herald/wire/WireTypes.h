#pragma once
#include <herald/wire/FieldSink.h>

#include <concepts>
#include <cstdint>
#include <string_view>
#include <type_traits>
#include <vector>

namespace Tessel {

class Text;
class TsString;

/// The class name of T without its namespace.
template <class T>
consteval std::string_view typeName() {
#ifdef _MSC_VER
  std::string_view name = __FUNCSIG__;
  name.remove_prefix(name.find("typeName<") + 9);
  name = name.substr(0, name.rfind(">("));
  if (name.starts_with("class ")) name.remove_prefix(6);
  if (name.starts_with("struct ")) name.remove_prefix(7);
#else
  std::string_view name = __PRETTY_FUNCTION__;
  name.remove_prefix(name.find("T = ") + 4);
  name = name.substr(0, name.find_first_of(";]"));
#endif
  constexpr std::string_view SPACE = "Tessel::";
  if (name.starts_with(SPACE)) name.remove_prefix(SPACE.size());
  return name;
}

/// The class name that descriptions give a record: its own, or what it says that it stands for.
template <class T>
consteval std::string_view recordName() {
  if constexpr (requires { T::RECORD_NAME; })
    return T::RECORD_NAME;
  else
    return typeName<T>();
}

/// The name that descriptions give the one record of a message or request: Owner::FIELD, or "body".
template <class Owner>
consteval const char* bodyName() {
  if constexpr (requires { Owner::FIELD; })
    return Owner::FIELD;
  else
    return "body";
}

// A field is one of: a number, a text, a layout (a class that declares `wire`), or a class that reads and describes
// itself by hand.

template <class T, class... Types>
concept OneOf = (std::same_as<T, Types> || ...);

template <class T>
concept WireNumber = OneOf<T, bool, std::int8_t, std::int16_t, std::int32_t, std::int64_t>;

template <class T>
concept WireText = OneOf<T, Text, TsString>;

struct AnyFields {};

/// A class that declares its fields once, in wire order:
///   template <class Self, class Fields> static void wire(Self& self, Fields& fields);
template <class T>
concept WireLayout = requires(T& object, AnyFields& fields) {
  &T::template wire<T, AnyFields>;
};

/// A layout of a single field that takes the name of the field that holds it, as the wrappers of single values do.
template <class T>
concept TransparentLayout = WireLayout<T> && requires {
  requires T::IS_TRANSPARENT;
};

/// The type in which a number of T travels.
template <WireNumber T>
constexpr WireType WIRE_TYPE_OF = std::same_as<T, bool> ? WireType::BOOL
                                  : sizeof(T) == 1      ? WireType::BYTE
                                  : sizeof(T) == 2      ? WireType::SHORT
                                  : sizeof(T) == 4      ? WireType::INT
                                                        : WireType::INT64;

}  // namespace Tessel
