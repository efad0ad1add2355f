// The merge order of "参数合并": the parameter names whose values are joined,
// top to bottom, into the new parameter's text. A name may stand more than
// once. Positions count from 0; one out of range changes nothing.
#pragma once

#include <string>
#include <vector>

#include "ProObjects.h"

class CTkParam;

void RemoveMergeName(std::vector<std::wstring>& names, int pos);
// The first name stays where it is.
void MoveMergeNameUp(std::vector<std::wstring>& names, int pos);
// Inserted two places down, then taken out of its old place. For the last
// name the insertion falls past the end and is refused, so the name leaves
// the list.
void MoveMergeNameDown(std::vector<std::wstring>& names, int pos);

// The values of the names in `mdl`, reals with `decimals` decimals, with
// nothing between them; a name the model does not have adds nothing.
std::wstring JoinParamValues(const CTkParam& param, ProMdl mdl, const std::vector<std::wstring>& names,
                             int decimals);
