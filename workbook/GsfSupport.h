// The few pieces of libgsf both containers share: one-time initialisation,
// ownership of GObjects, memory sources and sinks.
#pragma once

#include <gsf/gsf.h>

#include <memory>
#include <string>

#include "Bytes.h"

namespace workbook {

struct GObjectUnref {
  void operator()(void* object) const;
};
template <typename T>
using GsfPtr = std::unique_ptr<T, GObjectUnref>;

void EnsureGsfInitialised();

// A source over `bytes`, which must outlive it.
GsfPtr<GsfInput> MemoryInput(const Bytes& bytes);
Bytes ReadAll(GsfInput* input);
void WriteAll(GsfOutput* output, const Bytes& bytes);
// Closes a sink made by gsf_output_memory_new and takes what was written.
Bytes TakeMemoryOutput(GsfOutput* sink);

// Throws Error with `what` and the GError's message, freeing it.
[[noreturn]] void ThrowGsfError(const std::string& what, GError* error);

}  // namespace workbook
