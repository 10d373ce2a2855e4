#pragma once
#include <herald/messages/info_objects/InfoList.h>
#include <herald/messages/info_objects/RecordOperations.h>

namespace Tessel {

template <class T>
std::wstring InfoList<T>::toDebugString() const {
  std::wstring text = L"[InfoList: ";
  for (const T& element : elements_) text += element.toDebugString() + L' ';
  return text + L']';
}

}  // namespace Tessel
