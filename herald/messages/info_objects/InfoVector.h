#pragma once
#include <herald/messages/info_objects/TsString.h>
#include <herald/platform/keystone/ClonePointer.h>

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace Tessel {

/// A list whose element class is named on the wire by a type string. It owns its elements.
class HERALD_API InfoVector : public ReadableObjectInfo {
 public:
  static constexpr std::wstring_view CreditInfotypeString = L"com.tessel.games.poker4.shared.info.CreditInfo";
  static constexpr std::wstring_view PokerGameInfoTypeString = L"com.tessel.games.poker4.shared.info.PokerGameInfo";
  static constexpr std::wstring_view PGSettingsInfoTypeString = L"com.tessel.games.poker4.shared.info.PGSettingInfo";
  static constexpr std::wstring_view TournamentLobbyPlayerInfoTypeString =
      L"com.tessel.games.poker4.shared.info.tournament.TournamentLobbyPlayerInfo";
  static constexpr std::wstring_view TournamentLobbyTableInfoTypeString =
      L"com.tessel.games.poker4.shared.info.tournament.TournamentLobbyTableInfo";
  static constexpr std::wstring_view VIPPlayerInfoTypeString = L"com.tessel.shared.info.VIPPlayerInfo";
  static constexpr std::wstring_view TreeNodeInfoTypeString = L"com.tessel.shared.info.TreeNodeInfo";
  static constexpr std::wstring_view UnknownTypeString = L"Unknown info vector type string";

  /// Appends what the stream holds to the elements that are there. False when an element cannot be read; those before
  /// it stay. A type string without a class throws `KeystoneException` as soon as there is an element to make.
  bool read(ByteStream& in) override;
  [[nodiscard]] ReadableObjectInfo* clone() const override;
  std::wstring toDebugString() const override;
  void describe(FieldSink& sink) const override;

  /// The number of elements.
  int size() const { return static_cast<int>(elements_.size()); }
  /// An index outside 0 to `size()` - 1 throws `OutOfBoundsException`.
  const ReadableObjectInfo& operator[](int i) const;
  void clear() { elements_.clear(); }

  std::wstring getTypeString() const { return typeString_.getString(); }
  void setTypeString(const TsString& type) { typeString_ = type; }

 private:
  static ReadableObjectInfo* javaClassToObjectInfo(const TsString& type);

  TsString typeString_;
  std::vector<ClonePointer<ReadableObjectInfo>> elements_;
};

}  // namespace Tessel
