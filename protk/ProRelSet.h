// Relation sets: the relations of a model or of one of its features.
#pragma once

#include "ProObjects.h"

PRO_BEGIN_C_DECLS

typedef ProModelitem ProRelset;

// The item id that selects a model's post-regeneration relations.
#define PRO_RELSET_POST_REGEN_ID -2

// `p_item` is a model's own model item or one of its features.
extern ProError ProModelitemToRelset(ProModelitem* p_item, ProRelset* p_relset);
// The caller allocates `*p_line_array` with ProArrayAlloc (objects of
// ProWstring); the lines are appended, each a string of the host's, and the
// caller frees all with ProWstringproarrayFree.
extern ProError ProRelsetRelationsGet(ProRelset* p_relset, ProWstring** p_line_array);
// Replaces the set's relations; the host refuses lines that are no relation.
extern ProError ProRelsetRelationsSet(ProRelset* p_relset, ProWstring* line_array, int n_lines);
extern ProError ProRelsetRegenerate(ProRelset* p_relset);

PRO_END_C_DECLS
