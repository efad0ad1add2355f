// The backup of the current model with its drawings, and the cleanup of old
// version files. Both silent; what they delete goes to the trash.
#pragma once

// Asks for a directory (-4 without one), backs the current model up into it,
// then for each model below it that has a drawing of its name backs the
// drawing up and deletes the model's older numbered copies there. A model
// without a drawing keeps all its copies. Otherwise the status of the
// failed host call that ended it, or 0.
int BackupMdl();

// Deletes the older version files of the current model, of each model below
// it and of the drawing of each one's name where that can be loaded. The
// status of a failed host call, or 0.
int DelOldMdl();
