// The writes of the batch relation tool: one relation text into the
// relations of many models, or of their occurrences as components of the
// current model, by overwriting, adding or deleting blocks (RelationBlocks.h).
// Each relation set written or failed gives one line in the host's message
// area; the tool never stops at a failure, and nothing is saved.
#pragma once

#include <string>
#include <vector>

#include "ProObjects.h"

enum class RelationTarget { kMdl, kCmp };
enum class RelationWrite { kOverwrite, kAdd, kDelete };

// `mdls` are the models of the checked rows, in row order. With kCmp a
// model's relation sets are those of its occurrences in the current model's
// component tree, each written; a model that is no component of it, and the
// current model itself, get nothing and no line. Overwriting with an empty
// text clears the relations. An add leaves a model alone when every block of
// the text is there already, while a component then loses all its
// relations.
void WriteRelations(RelationWrite write, RelationTarget target, const std::vector<ProMdl>& mdls,
                    const std::wstring& text);
