// Toolkit-managed growable arrays.
#pragma once

#include "ProToolkit.h"

PRO_BEGIN_C_DECLS

extern ProError ProArrayAlloc(int n_objs, int obj_size, int reallocation_size, ProArray* p_array);
extern ProError ProArrayObjectAdd(ProArray* p_array, int index, int n_objects, void* p_object);
extern ProError ProArraySizeGet(ProArray array, int* p_size);
extern ProError ProArraySizeSet(ProArray* p_array, int size);
extern ProError ProArrayFree(ProArray* p_array);

PRO_END_C_DECLS
