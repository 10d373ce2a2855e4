#pragma once
#include <herald/messages/info_objects/GameInfo.h>
#include <herald/messages/info_objects/InfoList.h>

namespace Tessel {

class HERALD_API GameInfoList : public ReadableRecord<GameInfoList, InfoList<GameInfo>> {
 public:
  std::wstring toDebugString() const override;
};

}  // namespace Tessel
