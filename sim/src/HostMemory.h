// Memory the host hands out: toolkit arrays and wide strings. Each live
// block is registered, so that a double free or a foreign pointer is answered
// with a status instead of a crash. Blocks outlive host restarts: their
// owner is the caller.
#pragma once

#include <string_view>

namespace sim {

// A toolkit array: a hidden header (size, capacity, object size, growth)
// before the objects; the pointer handed out is the first object's.
// Memory shortage makes these answer null or false.
void* NewArray(int size, int objectSize, int growBy);
bool IsLiveArray(const void* array);
int ArraySize(const void* array);  // of a live array
// Insert `count` objects at `index` (0..size); may move the array.
bool ArrayInsert(void*& array, int index, int count, const void* objects);
// New objects are zero; may move the array.
bool ArrayResize(void*& array, int size);
bool FreeArray(void* array);

wchar_t* NewHostString(std::wstring_view text);
bool FreeHostString(wchar_t* text);

}  // namespace sim
