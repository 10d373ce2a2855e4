// Links only if the library has all that a user's program refers to: each exported class of the headers, which
// exports.awk lists, is constructed, copied, moved, assigned and derived, and each constant bound to a reference.
// Without optimisation every constructor, destructor and virtual operation that a header defines, or that the compiler
// writes, is compiled here and needs what it calls. A class that herald.h does not reach is an error that names it.

#include <herald/herald.h>
#include <herald/messages/info_objects/RecordOperations.h>

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string>
#include <type_traits>
#include <utility>

using namespace Tessel;

// Not an unnamed namespace: what is instantiated in one and not called is left out.
namespace Exports {

// Nothing is derived from a final class.
template <class T>
struct Derived : T {
  using T::T;
};
template <class T>
requires std::is_final_v<T>
struct Derived<T> {
};

/// Stands for any argument of T's constructors but a T. What takes one is compiled and not run.
template <class T>
struct Argument {
  template <class U>
  requires(!std::is_same_v<std::remove_cv_t<U>, T>) operator U&() const { std::abort(); }
};

// An abstract class does not tell how it is constructed: these take one argument, the others none.
template <class T>
concept AbstractWithArgument = std::is_same_v<T, ServerViewMessage> || std::is_same_v<T, GameModelNotifMessage>;

template <class T>
concept DerivedWithoutArgument =
    !AbstractWithArgument<T> && std::disjunction_v<std::is_abstract<T>, std::is_default_constructible<Derived<T>>>;

// Explicit instantiation compiles the constructors of what is derived from an abstract class, too.
template <class T>
class Constructed {};
template <class T>
requires DerivedWithoutArgument<T>
class Constructed<T> : public Derived<T> {
 public:
  Constructed() : Derived<T>() {}
};
template <class T>
requires AbstractWithArgument<T>
class Constructed<T> : public Derived<T> {
 public:
  Constructed() : Derived<T>(Argument<Derived<T>>()) {}
};

template <class T>
class Copied {};
template <class T>
requires std::is_copy_assignable_v<Derived<T>>
class Copied<T> : public Derived<T> {
 public:
  Copied(const Copied& other) : Derived<T>(other) {}
  Copied(Copied&& other) noexcept : Derived<T>(std::move(other)) {}
  Copied& operator=(const Copied& other) {
    Derived<T>::operator=(other);
    return *this;
  }
  Copied& operator=(Copied&& other) noexcept {
    Derived<T>::operator=(std::move(other));
    return *this;
  }
};

#define EXPORTED_CONSTANT(NAME)
#define EXPORTED_CLASS(NAME)        \
  template class Constructed<NAME>; \
  template class Copied<NAME>;
#include "exports.inc"
#undef EXPORTED_CONSTANT
#undef EXPORTED_CLASS

template <class T, std::size_t>
using ArgumentAt = Argument<T>;

template <class T, std::size_t... AT>
constexpr bool takes(std::index_sequence<AT...>) {
  return std::is_constructible_v<T, ArgumentAt<T, AT>...>;
}

constexpr std::size_t MOST_ARGUMENTS = 12;

/// With how many arguments a T can be constructed; 0 when no number will do.
template <class T, std::size_t COUNT = 1>
constexpr std::size_t countArguments() {
  if constexpr (COUNT > MOST_ARGUMENTS) {
    return 0;
  } else if constexpr (takes<T>(std::make_index_sequence<COUNT>())) {
    return COUNT;
  } else {
    return countArguments<T, COUNT + 1>();
  }
}

template <class T>
void copyAndAssign(T& object) {
  if constexpr (std::is_copy_constructible_v<T>) {
    T copied(object);
    T moved(std::move(copied));
    if constexpr (std::is_copy_assignable_v<T>) {
      object = moved;
      object = std::move(moved);
    }
  }
}

template <class T, std::size_t... AT>
void construct(std::index_sequence<AT...>) {
  T object(ArgumentAt<T, AT>{}...);
  copyAndAssign(object);
}

template <class T>
concept HasOneObject = std::is_same_v<T, UserAccountModel> || std::is_same_v<T, Schema> || requires {
  T::getInstance();
};

/// The classes of which no object is constructed here: a base, one whose object the library makes, and what is made of
/// anything that can be described.
template <class T>
constexpr bool IS_NOT_CONSTRUCTED =
    HasOneObject<
        T> || std::is_abstract_v<T> || std::is_default_constructible_v<Derived<T>> || std::is_same_v<T, Inspectable>;

volatile bool withArguments = false;

template <class T>
int use() {
  if constexpr (std::is_default_constructible_v<T>) {
    T object;
    copyAndAssign(object);
  } else if constexpr (constexpr std::size_t COUNT = countArguments<T>(); COUNT > 0) {
    if (withArguments) construct<T>(std::make_index_sequence<COUNT>());
  } else {
    static_assert(IS_NOT_CONSTRUCTED<T>, "no way is known here to construct an object of this class");
  }
  if constexpr (requires { T::ID; }) {
    const short& id = T::ID;
    if (id == 0) return 0;
  }
  return 1;
}

/// A message family of the application's own.
class Mine {
 public:
  virtual ~Mine() = default;
};

bool deliversOwnFamily() {
  MailBox<Mine, 1> box;
  auto message = std::make_unique<Mine>();
  const Mine* const posted = message.get();
  box.post(std::move(message));
  return box.pickupOwned().get() == posted && box.pickupAll().empty();
}

/// A record of the application's own.
class MyRecord : public ReadableWritableRecord<MyRecord> {
 public:
  explicit MyRecord(int value = 0) : value_(value) {}
  int getValue() const { return value_; }
  std::wstring toDebugString() const override { return L"[MyRecord]"; }

  template <class Self, class Fields>
  static void wire(Self& self, Fields& fields) {
    fields("value", self.value_);
  }

 private:
  std::int32_t value_;
};

bool readsOwnRecord() {
  ByteStream stream;
  MyRecord read;
  return MyRecord(7).write(stream) && read.read(stream) && read.getValue() == 7;
}

}  // namespace Exports

int main() {
  int classes = 0;
  int constants = 0;
#define EXPORTED_CLASS(NAME) classes += Exports::use<NAME>();
#define EXPORTED_CONSTANT(NAME)        \
  {                                    \
    const auto& constant = NAME;       \
    constants += &constant != nullptr; \
  }
#include "exports.inc"
  if (classes == 0 || constants == 0) return std::puts("exports: nothing was found in the headers"), 1;
  if (!Exports::deliversOwnFamily()) return std::puts("exports: a family of the user's own is not delivered"), 1;
  if (!Exports::readsOwnRecord()) return std::puts("exports: a record of the user's own is not read back"), 1;
  std::printf("exports: %d classes, %d constants\n", classes, constants);
  return 0;
}
