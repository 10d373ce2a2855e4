#pragma once
#include <herald/platform/keystone/Export.h>

#include <string>
#include <string_view>
#include <typeinfo>

namespace Tessel {

class FieldSink;

/// What a listing or JSON shows of a secret field, such as a password.
enum class Secrets { MASKED, SHOWN };

/// Stands in for the value of a masked field.
inline constexpr std::string_view SECRET_MASK = "***";

/// A view of anything that tells its fields: a message, a request or a record, which converts to it and must outlive
/// it.
class HERALD_API Inspectable {
 public:
  template <class T>
  requires requires(const T& object, FieldSink& sink) { object.describe(sink); }
  Inspectable(const T& object)
      : object_(&object), type_(&typeid(object)),
        describe_([](const void* self, FieldSink& sink) { static_cast<const T*>(self)->describe(sink); }) {}

  /// The class of the object, without its namespace.
  std::string_view className() const;
  void describe(FieldSink& sink) const { describe_(object_, sink); }

 private:
  const void* object_;
  const std::type_info* type_;
  void (*describe_)(const void* self, FieldSink& sink);
};

}  // namespace Tessel
