// Relation sets as lines of text: those of a model or of a component feature.
// No state; tools keep an instance as a member.
#pragma once

#include <string>
#include <vector>

#include "ProObjects.h"
#include "ProRelSet.h"

class CTkRelation {
 public:
  // The relation set of the model itself.
  int GetMdlRelset(ProMdl mdl, ProRelset& relset) const;
  // The relation set of a model item, such as a component feature.
  int GetItemRelset(const ProModelitem& item, ProRelset& relset) const;
  // The set's lines in the host's order, one relation, comment or blank
  // each; empties `lines` first.
  int GetRelationLines(const ProRelset& relset, std::vector<std::wstring>& lines) const;
  // Replaces the set's relations and regenerates them; no lines remove them
  // all. Each line goes to the host whole, in a buffer of at least 260
  // characters. A refusal of the lines is answered; once they are written
  // the answer is 0, whatever the regeneration gave.
  int SetRelationLines(const ProRelset& relset, const std::vector<std::wstring>& lines) const;
};
