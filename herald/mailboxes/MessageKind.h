#pragma once
#include <herald/platform/keystone/Export.h>

namespace Tessel {

/// A kind of a component message: delivers itself to the operation of its own class. Family is the base of its message
/// family.
template <class Kind, class Family>
class HERALD_API MessageKind : public Family {
 public:
  using Family::Family;
  void handle(typename Family::Handler& handler) const override;
};

/// The same for the families whose messages take their handler by pointer.
template <class Kind, class Family>
class HERALD_API PointerMessageKind : public Family {
 public:
  using Family::Family;
  void handle(typename Family::Handler* handler) override;
};

}  // namespace Tessel
