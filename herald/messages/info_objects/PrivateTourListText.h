#pragma once

namespace Tessel {

/// The debug format of the lists in the creation rules; it takes the name of the list.
inline constexpr auto PRIVATE_TOUR_LIST_TEXT =
    L"[%s: Obs, not empty, just not displaying all since list might be too long]";

}  // namespace Tessel
