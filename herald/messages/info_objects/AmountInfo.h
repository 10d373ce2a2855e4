#pragma once
#include <herald/messages/info_objects/WireRecord.h>

#include <cstdint>

namespace Tessel {

/// An amount as a field of a record: what an `AmountInfo` holds, without its operations of a record.
class HERALD_API Amount {
 public:
  static constexpr bool IS_TRANSPARENT = true;

  Amount() = default;
  Amount(std::int64_t amount) : amount_(amount) {}

  std::int64_t getAmount() const { return amount_; }

  std::wstring toDebugString() const;
  bool operator==(const Amount&) const = default;

  template <class Self, class Fields>
  static void wire(Self& self, Fields& fields) {
    fields("", self.amount_);
  }

 private:
  std::int64_t amount_ = 0;
};

/// An amount in the smallest units of a currency or in chips; the record around it says of which monetary unit.
class HERALD_API AmountInfo : public ReadableWritableRecord<AmountInfo> {
 public:
  static constexpr bool IS_TRANSPARENT = true;

  AmountInfo() = default;
  AmountInfo(std::int64_t amount) : amount_(amount) {}
  /// Reads the amount at once; throws `KeystoneException` when the stream is too short.
  explicit AmountInfo(ByteStream& in);

  std::int64_t getAmount() const { return amount_.getAmount(); }
  void setAmount(std::int64_t amount) { amount_ = amount; }

  std::wstring toDebugString() const override;
  bool operator==(const AmountInfo& other) const { return amount_ == other.amount_; }

  template <class Self, class Fields>
  static void wire(Self& self, Fields& fields) {
    fields("", self.amount_);
  }

 private:
  Amount amount_;
};

}  // namespace Tessel
