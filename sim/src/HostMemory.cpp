#include "HostMemory.h"

#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <cstring>
#include <mutex>
#include <new>
#include <unordered_set>

namespace sim {
namespace {

struct ArrayHeader {
  int size;
  int capacity;
  int objectSize;
  int growBy;
};

// The objects keep the alignment malloc gives.
constexpr size_t kHeaderSize = (sizeof(ArrayHeader) + alignof(std::max_align_t) - 1) /
                               alignof(std::max_align_t) * alignof(std::max_align_t);

std::mutex registryMutex;
std::unordered_set<const void*> liveArrays;
std::unordered_set<const void*> liveStrings;

ArrayHeader* HeaderOf(const void* array) {
  return reinterpret_cast<ArrayHeader*>(static_cast<char*>(const_cast<void*>(array)) - kHeaderSize);
}

char* Objects(ArrayHeader* header) { return reinterpret_cast<char*>(header) + kHeaderSize; }

bool Reserve(void*& array, int capacity) {
  ArrayHeader* header = HeaderOf(array);
  if (capacity <= header->capacity) return true;
  capacity = std::max(capacity, header->capacity + header->growBy);
  void* grown = std::realloc(header, kHeaderSize + static_cast<size_t>(capacity) * header->objectSize);
  if (!grown) return false;
  header = static_cast<ArrayHeader*>(grown);
  header->capacity = capacity;
  std::lock_guard lock(registryMutex);
  liveArrays.erase(array);
  array = Objects(header);
  liveArrays.insert(array);
  return true;
}

}  // namespace

void* NewArray(int size, int objectSize, int growBy) {
  int capacity = std::max(size, 1);
  void* block = std::calloc(1, kHeaderSize + static_cast<size_t>(capacity) * objectSize);
  if (!block) return nullptr;
  auto* header = static_cast<ArrayHeader*>(block);
  *header = {size, capacity, objectSize, std::max(growBy, 1)};
  void* array = Objects(header);
  std::lock_guard lock(registryMutex);
  liveArrays.insert(array);
  return array;
}

bool IsLiveArray(const void* array) {
  std::lock_guard lock(registryMutex);
  return liveArrays.count(array) != 0;
}

int ArraySize(const void* array) { return HeaderOf(array)->size; }

bool ArrayInsert(void*& array, int index, int count, const void* objects) {
  int size = HeaderOf(array)->size;
  if (!Reserve(array, size + count)) return false;
  ArrayHeader* header = HeaderOf(array);
  size_t objectSize = header->objectSize;
  char* at = Objects(header) + index * objectSize;
  std::memmove(at + count * objectSize, at, (size - index) * objectSize);
  std::memcpy(at, objects, count * objectSize);
  header->size = size + count;
  return true;
}

bool ArrayResize(void*& array, int size) {
  if (!Reserve(array, size)) return false;
  ArrayHeader* header = HeaderOf(array);
  if (size > header->size) {
    std::memset(Objects(header) + header->size * static_cast<size_t>(header->objectSize), 0,
                static_cast<size_t>(size - header->size) * header->objectSize);
  }
  header->size = size;
  return true;
}

bool FreeArray(void* array) {
  {
    std::lock_guard lock(registryMutex);
    if (liveArrays.erase(array) == 0) return false;
  }
  std::free(HeaderOf(array));
  return true;
}

wchar_t* NewHostString(std::wstring_view text) {
  auto* copy = new (std::nothrow) wchar_t[text.size() + 1];
  if (!copy) return nullptr;
  std::copy(text.begin(), text.end(), copy);
  copy[text.size()] = L'\0';
  std::lock_guard lock(registryMutex);
  liveStrings.insert(copy);
  return copy;
}

bool FreeHostString(wchar_t* text) {
  {
    std::lock_guard lock(registryMutex);
    if (liveStrings.erase(text) == 0) return false;
  }
  delete[] text;
  return true;
}

}  // namespace sim
