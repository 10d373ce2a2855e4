#include <herald/messages/info_objects/RecordOperations.h>
#include <herald/messages/info_objects/TourSummaryLists.h>

namespace Tessel {

std::wstring TourSummaryList::toDebugString() const {
  const TsArray<TourSummary>& infos = getItems();
  return formatText(L"[TourSummaryList: NumInfos=%d, FirstInfo=%s]", infos.size(),
                    infos.empty() ? std::wstring() : infos[0].toDebugString());
}

std::wstring TourSummaryUpdateList::toDebugString() const {
  return formatText(L"[TourSummaryUpdateList: NumInfos=%d]", getItems().size());
}

std::wstring TourSummaryDeleteList::toDebugString() const {
  return formatText(L"[TourSummaryDeleteList: NumInfos=%d]", getItems().size());
}

}  // namespace Tessel
