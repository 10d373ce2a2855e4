#pragma once
#include <herald/messages/info_objects/WireRecord.h>
#include <herald/wire/Text.h>

#include <cstdint>

namespace Tessel {

/// How amounts are shown: what stands before and behind the number.
class HERALD_API CurrencyInfo : public PlainRecord<CurrencyInfo> {
 public:
  CurrencyInfo() = default;
  /// Reads the record at once; throws `KeystoneException` when the stream is too short.
  explicit CurrencyInfo(ByteStream& in);

  std::wstring getId() const { return id_.getString(); }
  std::wstring getPrefix() const { return prefix_.getString(); }
  std::wstring getPostfix() const { return postfix_.getString(); }
  int getCutOffAmount() const { return cutOffAmount_; }
  int getSortingPriority() const { return sortingPriority_; }

  std::wstring toDebugString() const;

  template <class Self, class Fields>
  static void wire(Self& self, Fields& fields) {
    fields("id", self.id_);
    fields("prefix", self.prefix_);
    fields("postfix", self.postfix_);
    fields("cutOffAmount", self.cutOffAmount_);
    fields("sortingPriority", self.sortingPriority_);
  }

 private:
  Text id_;
  Text prefix_;
  Text postfix_;
  std::int16_t cutOffAmount_ = -1;
  std::int8_t sortingPriority_ = -1;
};

}  // namespace Tessel
