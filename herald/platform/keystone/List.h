#pragma once
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <memory>
#include <new>
#include <type_traits>
#include <utility>

namespace Tessel {

/// The items of a list, one behind the other: what a record keeps of a list that it has read. As a rule it owns its
/// memory, as a vector does. The items of a message that was just read may lie in memory that the message owns; then
/// the list gives nothing back when it is destroyed. Whatever is copied from it owns its memory.
///
/// Items are started, copied and destroyed as the T that they are, never through virtual operations.
template <class T>
class List {
 public:
  using value_type = T;
  using iterator = T*;
  using const_iterator = const T*;

  List() = default;
  explicit List(std::size_t size) { resize(size); }
  List(std::initializer_list<T> items) : List(items.begin(), items.end()) {}
  template <class Iterator>
  List(Iterator first, Iterator last) {
    for (; first != last; ++first) add(static_cast<T>(*first));
  }
  List(const List& other) : List() {
    reserve(other.size());
    for (const T& item : other) append(item);
  }
  List(List&& other) noexcept { swap(other); }
  List& operator=(const List& other) {
    if (this != &other) List(other).swap(*this);
    return *this;
  }
  List& operator=(List&& other) noexcept {
    swap(other);
    return *this;
  }
  ~List() { release(); }

  std::size_t size() const { return held_.size; }
  bool empty() const { return held_.size == 0; }

  const T* data() const { return held_.items; }
  const T* begin() const { return held_.items; }
  const T* end() const { return held_.items + held_.size; }
  const T& operator[](std::size_t i) const { return held_.items[i]; }
  const T& front() const { return held_.items[0]; }
  const T& back() const { return held_.items[held_.size - 1]; }

  // Whoever changes an item may give it memory of its own.
  T* data() { return held_.isSettled = false, held_.items; }
  T* begin() { return data(); }
  T* end() { return data() + held_.size; }
  T& operator[](std::size_t i) { return data()[i]; }
  T& front() { return data()[0]; }
  T& back() { return data()[held_.size - 1]; }

  void add(T item) {
    if (held_.size == held_.capacity) reallocate(std::max<std::size_t>(2 * std::size_t{held_.size}, 4));
    append(std::move(item));
  }

  void resize(std::size_t size) {
    reserve(size);
    while (held_.size < size) append();
    while (held_.size > size) destroy(held_.items[--held_.size]);
  }

  void reserve(std::size_t capacity) {
    if (capacity > held_.capacity) reallocate(capacity);
  }

  void clear() { List().swap(*this); }

  void swap(List& other) noexcept { std::swap(held_, other.held_); }

  bool operator==(const List& other) const { return std::equal(begin(), end(), other.begin(), other.end()); }

  // For those who read lists: they make room first and then append without a test.

  /// Empties the list and gives it uninitialised memory for items, which somebody else owns and keeps until the list
  /// has been destroyed or been given other memory.
  void borrow(void* memory, std::size_t capacity) {
    clear();
    held_.items = static_cast<T*>(memory);
    setCapacity(capacity);
    held_.isBorrowed = true;
  }
  /// Appends an item made of these arguments. There must be room for it.
  template <class... Args>
  T& append(Args&&... args) {
    void* const place = held_.items + held_.size;
    T* item;
    if constexpr (sizeof...(Args) == 0)
      item = new (place) T;  // not filled with zeros first
    else
      item = new (place) T(std::forward<Args>(args)...);
    ++held_.size;
    return *item;
  }
  /// What the items in borrowed memory hold is in such memory, too: they need not be destroyed.
  void settle() { held_.isSettled = held_.isBorrowed; }
  bool isSettled() const { return held_.isSettled; }

 private:
  void setCapacity(std::size_t capacity) {
    constexpr std::uint32_t MAX_CAPACITY = (1u << 30) - 1;
    if (capacity > MAX_CAPACITY) throw std::bad_alloc();
    held_.capacity = static_cast<std::uint32_t>(capacity) & MAX_CAPACITY;
  }

  static void destroy(T& item) {
    if constexpr (!std::is_trivially_destructible_v<T>) item.T::~T();
  }

  void release() {
    if (!held_.isSettled)
      for (std::size_t i = 0; i < held_.size; ++i) destroy(held_.items[i]);
    if (!held_.isBorrowed && held_.items != nullptr) std::allocator<T>().deallocate(held_.items, held_.capacity);
  }

  void reallocate(std::size_t capacity) {
    List larger;
    larger.setCapacity(capacity);
    larger.held_.items = std::allocator<T>().allocate(capacity);
    for (std::size_t i = 0; i < held_.size; ++i) larger.append(std::move(held_.items[i]));
    swap(larger);
  }

  struct Held {
    T* items = nullptr;
    std::uint32_t size = 0;
    std::uint32_t capacity : 30 = 0;
    std::uint32_t isBorrowed : 1 = false;
    std::uint32_t isSettled : 1 = false;
  };

  Held held_;
};

}  // namespace Tessel
