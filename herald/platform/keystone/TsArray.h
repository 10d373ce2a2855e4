#pragma once
#include <herald/platform/keystone/List.h>

#include <initializer_list>
#include <stdexcept>
#include <utility>
#include <vector>

namespace Tessel {

/// The growable array in which records hand out lists of values. A value type; an index outside 0 to `size()` - 1 and a
/// negative size fail with `std::invalid_argument`.
template <class T>
class TsArray {
 public:
  using value_type = T;

  TsArray() = default;
  explicit TsArray(int size) : items_(checkedSize(size)) {}
  TsArray(std::initializer_list<T> items) : items_(items) {}
  explicit TsArray(const std::vector<T>& items) : items_(items.begin(), items.end()) {}
  explicit TsArray(List<T> items) : items_(std::move(items)) {}
  template <class Iterator>
  TsArray(Iterator first, Iterator last) : items_(first, last) {}
  TsArray(const TsArray&) = default;
  TsArray(TsArray&&) noexcept = default;
  TsArray& operator=(const TsArray&) = default;
  TsArray& operator=(TsArray&&) noexcept = default;
  virtual ~TsArray() = default;

  int size() const { return static_cast<int>(items_.size()); }
  bool empty() const { return items_.empty(); }

  const T& at(int index) const { return items_[checkedIndex(index)]; }
  T& at(int index) { return items_[checkedIndex(index)]; }
  const T& operator[](int index) const { return at(index); }
  T& operator[](int index) { return at(index); }

  void add(T item) { items_.add(std::move(item)); }
  void setSize(int size) { items_.resize(checkedSize(size)); }
  void clear() { items_.clear(); }

  List<T>& items() { return items_; }
  const List<T>& items() const { return items_; }

  auto begin() const { return items_.begin(); }
  auto begin() { return items_.begin(); }
  auto end() const { return items_.end(); }
  auto end() { return items_.end(); }

  bool operator==(const TsArray& other) const { return items_ == other.items_; }

 private:
  static std::size_t checkedSize(int size) {
    if (size < 0) throw std::invalid_argument("TsArray: negative size");
    return static_cast<std::size_t>(size);
  }
  std::size_t checkedIndex(int index) const {
    if (index < 0 || index >= size()) throw std::invalid_argument("TsArray: index out of range");
    return static_cast<std::size_t>(index);
  }

  List<T> items_;
};

}  // namespace Tessel
