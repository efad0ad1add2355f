#include "CompoundFile.h"

#include <gsf/gsf-infile-msole.h>
#include <gsf/gsf-outfile-msole.h>

#include <algorithm>
#include <cctype>

#include "CompoundFileCheck.h"
#include "Error.h"
#include "GsfSupport.h"

namespace workbook {
namespace {

// Deeper nesting than any real file holds is taken as damage, so that a
// crafted file cannot exhaust the stack.
constexpr int kMaxDepth = 16;

void ReadStorage(GsfInfile* storage, CompoundEntry& entry, int depth) {
  if (depth > kMaxDepth) throw Error("damaged compound file: storages nested too deep");
  gsf_infile_msole_get_class_id(GSF_INFILE_MSOLE(storage), entry.classId.data());
  int count = gsf_infile_num_children(storage);
  for (int i = 0; i < count; ++i) {
    GsfPtr<GsfInput> child(gsf_infile_child_by_index(storage, i));
    if (!child) throw Error("damaged compound file: an entry cannot be opened");
    CompoundEntry& childEntry = entry.children.emplace_back();
    const char* name = gsf_infile_name_by_index(storage, i);
    childEntry.name = name ? name : "";
    GsfInfile* childStorage = GSF_INFILE(child.get());
    childEntry.isStorage = gsf_infile_num_children(childStorage) >= 0;
    if (childEntry.isStorage) {
      ReadStorage(childStorage, childEntry, depth + 1);
    } else {
      childEntry.data = ReadAll(child.get());
    }
  }
}

void WriteStorage(GsfOutfile* storage, const CompoundEntry& entry) {
  gsf_outfile_msole_set_class_id(GSF_OUTFILE_MSOLE(storage), entry.classId.data());
  for (const CompoundEntry& child : entry.children) {
    GsfPtr<GsfOutput> output(gsf_outfile_new_child(storage, child.name.c_str(), child.isStorage));
    if (!output) throw Error("cannot write the compound file entry " + child.name);
    if (child.isStorage) {
      WriteStorage(GSF_OUTFILE(output.get()), child);
    } else {
      WriteAll(output.get(), child.data);
    }
    gsf_output_close(output.get());
  }
}

}  // namespace

CompoundFile CompoundFile::Read(const Bytes& image) {
  CheckCompoundFileAllocation(image);
  GsfPtr<GsfInput> input = MemoryInput(image);
  GError* error = nullptr;
  GsfPtr<GsfInfile> root(gsf_infile_msole_new(input.get(), &error));
  if (!root) ThrowGsfError("not a readable compound file", error);
  CompoundFile file;
  file.root_.isStorage = true;
  ReadStorage(root.get(), file.root_, 0);
  return file;
}

Bytes CompoundFile::Write() const {
  EnsureGsfInitialised();
  GsfPtr<GsfOutput> sink(gsf_output_memory_new());
  {
    GsfPtr<GsfOutfile> root(gsf_outfile_msole_new(sink.get()));
    WriteStorage(root.get(), root_);
    gsf_output_close(GSF_OUTPUT(root.get()));
  }
  return TakeMemoryOutput(sink.get());
}

CompoundEntry* CompoundFile::FindStream(std::string_view name) {
  // Entry names of a compound file compare without regard to case.
  auto same = [](std::string_view a, std::string_view b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(), [](char x, char y) {
      return std::tolower(static_cast<unsigned char>(x)) == std::tolower(static_cast<unsigned char>(y));
    });
  };
  for (CompoundEntry& child : root_.children) {
    if (!child.isStorage && same(child.name, name)) return &child;
  }
  return nullptr;
}

const CompoundEntry* CompoundFile::FindStream(std::string_view name) const {
  return const_cast<CompoundFile*>(this)->FindStream(name);
}

}  // namespace workbook
