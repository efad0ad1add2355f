// The 16 by 16 images of the lists, by their index in the strip: 2 a text
// document, 14 a part, 15 an assembly, 16 a drawing. Drawn here, not loaded.
#pragma once

#include <QIcon>

// An empty icon for an index without an image.
QIcon ListImage(int index);
