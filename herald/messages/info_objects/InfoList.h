#pragma once
#include <herald/messages/info_objects/RecordIndex.h>
#include <herald/messages/info_objects/WireRecord.h>
#include <herald/platform/keystone/List.h>

#include <cstdint>

namespace Tessel {

/// A list of records behind a 16-bit count. A record class that is listed instantiates its list in its own source file.
template <class T>
class HERALD_API InfoList : public ReadableRecord<InfoList<T>> {
 public:
  static constexpr bool IS_TRANSPARENT = true;

  /// The count as it came; a negative one has no elements.
  int getNrInfos() const { return count_; }

  /// An index outside 0 to `getNrInfos()` - 1 throws `OutOfBoundsException`.
  const T& operator[](int i) const {
    checkRecordIndex(L"messages/info_objects/InfoList", i, elements_.size(), count_);
    return elements_[static_cast<std::size_t>(i)];
  }

  auto begin() const { return elements_.begin(); }
  auto end() const { return elements_.end(); }

  std::wstring toDebugString() const override;

  template <class Self, class Fields>
  static void wire(Self& self, Fields& fields) {
    fields.template countedKeeping<std::int16_t>("", self.count_, self.elements_);
  }

 private:
  std::int16_t count_ = 0;
  List<T> elements_;
};

}  // namespace Tessel
