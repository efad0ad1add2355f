#include "PackageParts.h"

#include <gsf/gsf.h>

namespace fs = std::filesystem;

namespace {

std::string ReadStream(GsfInput* input) {
  std::string data(static_cast<size_t>(gsf_input_size(input)), '\0');
  if (!data.empty()) gsf_input_read(input, data.size(), reinterpret_cast<guint8*>(data.data()));
  return data;
}

// Walks a container: storages (with `withClassIds`, their class id under
// their path + "/") and streams.
void ReadTree(GsfInfile* folder, const std::string& prefix, bool withClassIds,
              std::map<std::string, std::string>& parts) {
  if (withClassIds) {
    guint8 classId[16];
    gsf_infile_msole_get_class_id(GSF_INFILE_MSOLE(folder), classId);
    parts[prefix + "/"] = std::string(reinterpret_cast<char*>(classId), sizeof classId);
  }
  for (int i = 0; i < gsf_infile_num_children(folder); ++i) {
    GsfInput* child = gsf_infile_child_by_index(folder, i);
    std::string path = (prefix.empty() ? "" : prefix + "/") + gsf_infile_name_by_index(folder, i);
    if (gsf_infile_num_children(GSF_INFILE(child)) >= 0) {
      ReadTree(GSF_INFILE(child), path, withClassIds, parts);
    } else {
      parts[path] = ReadStream(child);
    }
    g_object_unref(child);
  }
}

std::map<std::string, std::string> ReadContainer(const fs::path& file, bool compound) {
  std::map<std::string, std::string> parts;
  gsf_init();
  GError* error = nullptr;
  GsfInput* input = gsf_input_stdio_new(file.c_str(), &error);
  if (!input) {
    g_clear_error(&error);
    return parts;
  }
  GsfInfile* root = compound ? gsf_infile_msole_new(input, &error) : gsf_infile_zip_new(input, &error);
  if (root) {
    ReadTree(root, "", compound, parts);
    g_object_unref(root);
  }
  g_clear_error(&error);
  g_object_unref(input);
  return parts;
}

}  // namespace

std::map<std::string, std::string> CompoundFileParts(const fs::path& xls) { return ReadContainer(xls, true); }

std::map<std::string, std::string> ZipParts(const fs::path& xlsx) { return ReadContainer(xlsx, false); }
