#pragma once
#include <herald/messages/info_objects/LayoutOperations.h>

#include <string_view>

namespace Tessel {

/// The debug text of a message or request whose body is one record: Owner::TEXT may leave the record out.
template <class Owner, class Record>
std::wstring textAround(const Record& body) {
  if constexpr (std::wstring_view(Owner::TEXT).find(L'%') == std::wstring_view::npos)
    return Owner::TEXT;
  else
    return formatText(Owner::TEXT, body);
}

}  // namespace Tessel
