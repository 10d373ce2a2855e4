#pragma once
#include <herald/mailboxes/MessageKind.h>

// Included by the source files of the message families only.

namespace Tessel {

template <class Kind, class Family>
void MessageKind<Kind, Family>::handle(typename Family::Handler& handler) const {
  handler.handle(static_cast<const Kind&>(*this));
}

template <class Kind, class Family>
void PointerMessageKind<Kind, Family>::handle(typename Family::Handler* handler) {
  handler->handle(static_cast<const Kind&>(*this));
}

}  // namespace Tessel
