// The assignment of one checked row of the batch material tool's "保存".
#pragma once

#include <string>

#include "ProObjects.h"

class CTkMaterial;

// Assigns the material `name` to `mdl` from the file `path`; an empty path
// is looked for under the present "pro_material_dir" by the material's name
// (FindMaterialFile). "pro_material_dir" points at the file's directory for
// the span of the assignment only, so a file from anywhere does. The
// assignment's status is not looked at; with `autoSave` the model is saved
// after it. False, and nothing done, when no file was found.
bool AssignRowMaterial(const CTkMaterial& material, ProMdl mdl, const std::wstring& name,
                       const std::wstring& path, bool autoSave);
