#pragma once
#include <bench/codecs/Floor.h>
#include <bench/codecs/Operations.h>

namespace Bench {

inline void append(Values& values, const std::string& text) { values.push_back(text); }

inline void append(Values& values, std::integral auto number) { values.push_back(std::to_string(number)); }

template <class T>
requires requires(const T& record) { record.fields(); }
void append(Values& values, const T& record);

template <class T>
void append(Values& values, const std::optional<T>& conditional) {
  if (conditional) append(values, *conditional);
}

template <class T>
void append(Values& values, const std::vector<T>& list) {
  values.push_back(std::to_string(list.size()));
  for (const T& item : list) append(values, item);
}

template <class T>
requires requires(const T& record) { record.fields(); }
void append(Values& values, const T& record) {
  std::apply([&](const auto&... fields) { (append(values, fields), ...); }, record.fields());
}

template <class T>
Values valuesOfFloor(const Bytes& body) {
  Values values;
  append(values, Floor::read<T>(body));
  return values;
}

}  // namespace Bench
