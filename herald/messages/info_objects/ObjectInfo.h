#pragma once
#include <herald/platform/keystone/ByteStream.h>
#include <herald/wire/WireReader.h>

#include <memory>
#include <utility>

namespace Tessel {

/// Throws `KeystoneException` "Array does not contain any info objects.".
[[noreturn]] HERALD_API void throwNoInfoObjects();

/// Reads that many records into a new array; null for a count below 1. A record that answers false throws
/// `KeystoneException` "Failed to read info object.".
template <class T>
[[nodiscard]] std::unique_ptr<T[]> readOwnedInfoArray(ByteStream& in, char count) {
  const auto size = static_cast<std::int8_t>(count);
  if (size < 1) return nullptr;
  auto records = std::make_unique<T[]>(static_cast<std::size_t>(size));
  for (int i = 0; i < size; ++i) {
    if (!records[static_cast<std::size_t>(i)].read(in)) throwInfoObjectFailed();
  }
  return records;
}

/// The same. The caller owns the array and frees it with `delete[]`.
template <class T>
[[nodiscard]] T* readInfoArray(ByteStream& in, char count) {
  return readOwnedInfoArray<T>(in, count).release();
}

/// The sum of the records' sizes in bytes. Throws `KeystoneException` for a count below 1 and for null.
template <class T>
int infoArraySize(const T* records, char count) {
  const auto size = static_cast<std::int8_t>(count);
  if (size < 1 || records == nullptr) throwNoInfoObjects();
  int sum = 0;
  for (int i = 0; i < size; ++i) sum += records[i].size();
  return sum;
}

}  // namespace Tessel
