#pragma once
#include <memory>
#include <utility>

namespace Tessel {

/// Owns an object of a class that knows `clone`; a copy owns a clone.
template <class T>
class ClonePointer {
 public:
  ClonePointer() = default;
  explicit ClonePointer(std::unique_ptr<T> object) : object_(std::move(object)) {}
  ClonePointer(const ClonePointer& other) : object_(other.object_ ? other.object_->clone() : nullptr) {}
  ClonePointer(ClonePointer&&) noexcept = default;
  ClonePointer& operator=(const ClonePointer& other) {
    if (this != &other) *this = ClonePointer(other);
    return *this;
  }
  ClonePointer& operator=(ClonePointer&&) noexcept = default;
  ~ClonePointer() = default;

  T* get() const { return object_.get(); }
  T& operator*() const { return *object_; }
  T* operator->() const { return object_.get(); }

 private:
  std::unique_ptr<T> object_;
};

}  // namespace Tessel
