#pragma once
#include <herald/platform/keystone/TsArray.h>

#include <map>
#include <utility>

namespace Tessel {

/// Entries by id, in ascending order, and the ids that were changed since the last reset, in the order of the changes.
template <class Entry>
class ModifiedMap {
 public:
  void set(int id, Entry entry) {
    entries_.insert_or_assign(id, std::move(entry));
    modifiedIds_.add(id);
  }

  /// The id counts as changed also when it has no entry.
  void remove(int id) {
    entries_.erase(id);
    modifiedIds_.add(id);
  }

  void clear() {
    for (const auto& [id, entry] : entries_) modifiedIds_.add(id);
    entries_.clear();
  }

  /// Null when the id has no entry.
  const Entry* find(int id) const {
    const auto entry = entries_.find(id);
    return entry == entries_.end() ? nullptr : &entry->second;
  }
  Entry* find(int id) { return const_cast<Entry*>(std::as_const(*this).find(id)); }

  TsArray<int> ids() const {
    TsArray<int> ids;
    for (const auto& [id, entry] : entries_) ids.add(id);
    return ids;
  }

  const TsArray<int>& modifiedIds() const { return modifiedIds_; }
  void resetModifiedIds() { modifiedIds_.clear(); }

 private:
  std::map<int, Entry> entries_;
  TsArray<int> modifiedIds_;
};

}  // namespace Tessel
