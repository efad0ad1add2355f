// The toolkit's growable arrays.
#include "ProArray.h"

#include "HostMemory.h"
#include "ToolkitCall.h"

namespace {

bool IsArray(const ProArray* p_array) { return p_array && sim::IsLiveArray(*p_array); }

}  // namespace

extern "C" ProError ProArrayAlloc(int n_objs, int obj_size, int reallocation_size, ProArray* p_array) {
  sim::ToolkitCall call("ProArrayAlloc", {n_objs, obj_size});
  if (call.Failed()) return call.Status();
  if (!p_array || n_objs < 0 || obj_size <= 0 || reallocation_size <= 0) return PRO_TK_BAD_INPUTS;
  *p_array = sim::NewArray(n_objs, obj_size, reallocation_size);
  return *p_array ? PRO_TK_NO_ERROR : PRO_TK_OUT_OF_MEMORY;
}

extern "C" ProError ProArrayObjectAdd(ProArray* p_array, int index, int n_objects, void* p_object) {
  sim::ToolkitCall call("ProArrayObjectAdd", {index, n_objects});
  if (call.Failed()) return call.Status();
  if (!IsArray(p_array) || n_objects <= 0 || !p_object) return PRO_TK_BAD_INPUTS;
  int size = sim::ArraySize(*p_array);
  if (index > size) return PRO_TK_BAD_INPUTS;
  if (index < 0) index = size;
  return sim::ArrayInsert(*p_array, index, n_objects, p_object) ? PRO_TK_NO_ERROR : PRO_TK_OUT_OF_MEMORY;
}

extern "C" ProError ProArraySizeGet(ProArray array, int* p_size) {
  sim::ToolkitCall call("ProArraySizeGet");
  if (call.Failed()) return call.Status();
  if (!sim::IsLiveArray(array) || !p_size) return PRO_TK_BAD_INPUTS;
  *p_size = sim::ArraySize(array);
  return PRO_TK_NO_ERROR;
}

extern "C" ProError ProArraySizeSet(ProArray* p_array, int size) {
  sim::ToolkitCall call("ProArraySizeSet", {size});
  if (call.Failed()) return call.Status();
  if (!IsArray(p_array) || size < 0) return PRO_TK_BAD_INPUTS;
  return sim::ArrayResize(*p_array, size) ? PRO_TK_NO_ERROR : PRO_TK_OUT_OF_MEMORY;
}

extern "C" ProError ProArrayFree(ProArray* p_array) {
  sim::ToolkitCall call("ProArrayFree");
  if (call.Failed()) return call.Status();
  if (!p_array || !sim::FreeArray(*p_array)) return PRO_TK_BAD_INPUTS;
  *p_array = nullptr;
  return PRO_TK_NO_ERROR;
}
