// The output options the host hands out for 3-D export. A freed option is
// unknown at once; a pointer the host did not hand out is unknown too, and
// never dereferenced. Call with the host held.
#pragma once

#include "ProObjects.h"

#include <map>
#include <memory>

struct pro_output_brep_representation {
  bool wireframe = false;
  bool surfaces = false;
  bool solid = false;
  bool quilts = false;
};

struct pro_output_inclusion {
  bool datums = false;
  bool blanked = false;
  bool facetted = false;
};

struct pro_output_layer_options {
  bool autoIds = false;
};

namespace sim {

template <class Option>
class HandedOut {
 public:
  Option* New() {
    auto option = std::make_unique<Option>();
    Option* handle = option.get();
    live_.emplace(handle, std::move(option));
    return handle;
  }
  // Null when unknown.
  Option* Find(const void* handle) const {
    auto found = live_.find(handle);
    return found == live_.end() ? nullptr : found->second.get();
  }
  bool Free(const void* handle) { return live_.erase(handle) > 0; }

 private:
  std::map<const void*, std::unique_ptr<Option>> live_;
};

// What the simulated host writes: STEP and IGES. A type outside the host's
// enumeration is no type at all; one within it that is not written here is
// refused as the wrong type.
ProError CheckWrittenType(int fileType);
bool SupportsConfiguration(int fileType, int configuration);
// Something with faces: solids, surfaces or quilts.
bool SupportsRepresentation(const pro_output_brep_representation& representation);

struct OutputOptions {
  HandedOut<pro_output_brep_representation> representations;
  HandedOut<pro_output_inclusion> inclusions;
  HandedOut<pro_output_layer_options> layerOptions;
};

}  // namespace sim
