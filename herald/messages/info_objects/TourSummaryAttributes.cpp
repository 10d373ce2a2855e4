#include <herald/messages/info_objects/RecordOperations.h>
#include <herald/messages/info_objects/TourSummaryAttributes.h>

namespace Tessel {

TourSummaryAttributes::~TourSummaryAttributes() = default;

}  // namespace Tessel
