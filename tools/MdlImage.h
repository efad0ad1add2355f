// The image in front of a model's row in the batch tools' model lists.
#pragma once

#include "ProObjects.h"

class CTkModel;

// 15 for an assembly, 14 for a part, 16 for any other model.
int MdlImageOf(const CTkModel& model, ProMdl mdl);
