#include "GsfSupport.h"

#include <mutex>

#include "Error.h"

namespace workbook {
namespace {
// Far beyond any template; a damaged or crafted size is refused before memory
// is taken for it.
constexpr gsf_off_t kMaxPartSize = gsf_off_t{256} << 20;
}  // namespace

void GObjectUnref::operator()(void* object) const {
  if (object) g_object_unref(object);
}

void EnsureGsfInitialised() {
  static std::once_flag once;
  std::call_once(once, [] { gsf_init(); });
}

GsfPtr<GsfInput> MemoryInput(const Bytes& bytes) {
  EnsureGsfInitialised();
  return GsfPtr<GsfInput>(gsf_input_memory_new(bytes.data(), static_cast<gsf_off_t>(bytes.size()), FALSE));
}

Bytes ReadAll(GsfInput* input) {
  gsf_off_t size = gsf_input_size(input);
  if (size < 0) throw Error("damaged file: a part has no size");
  if (size > kMaxPartSize) throw Error("a part of the file is larger than 256 MB");
  Bytes bytes(static_cast<size_t>(size));
  if (size > 0 && !gsf_input_read(input, bytes.size(), bytes.data())) {
    throw Error("damaged file: a part cannot be read to its end");
  }
  return bytes;
}

void WriteAll(GsfOutput* output, const Bytes& bytes) {
  if (!bytes.empty() && !gsf_output_write(output, bytes.size(), bytes.data())) {
    throw Error("cannot write a part of the file");
  }
}

Bytes TakeMemoryOutput(GsfOutput* sink) {
  // Closing a container closes its sink too.
  if (!gsf_output_is_closed(sink)) gsf_output_close(sink);
  const guint8* data = gsf_output_memory_get_bytes(GSF_OUTPUT_MEMORY(sink));
  gsf_off_t size = gsf_output_size(sink);
  return data ? Bytes(data, data + size) : Bytes();
}

void ThrowGsfError(const std::string& what, GError* error) {
  std::string message = what;
  if (error) {
    message += ": ";
    message += error->message;
    g_error_free(error);
  }
  throw Error(message);
}

}  // namespace workbook
