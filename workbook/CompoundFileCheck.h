// A check of an OLE2 compound file's allocation before libgsf reads it.
// libgsf follows sector chains without asking whether two of them meet; a
// damaged file whose streams share sectors would read as garbage, so it is
// refused here.
#pragma once

#include "Bytes.h"

namespace workbook {

// Throws Error unless every FAT, DIFAT, directory, mini stream and stream
// chain stays inside the file, no sector (or mini sector) belongs to two, and
// the directory entries form one tree.
void CheckCompoundFileAllocation(const Bytes& image);

}  // namespace workbook
