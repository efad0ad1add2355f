#include "Placement.h"

#include <algorithm>
#include <cmath>

namespace sim {

Transform Then(const Transform& first, const Transform& second) {
  Transform product{};
  for (int row = 0; row < 4; ++row) {
    for (int column = 0; column < 4; ++column) {
      for (int k = 0; k < 4; ++k) product[row][column] += first[row][k] * second[k][column];
    }
  }
  return product;
}

std::optional<Transform> Inverse(const Transform& m) {
  auto minor = [&](int r0, int r1, int c0, int c1) { return m[r0][c0] * m[r1][c1] - m[r0][c1] * m[r1][c0]; };
  double cofactor[3][3] = {{minor(1, 2, 1, 2), -minor(1, 2, 0, 2), minor(1, 2, 0, 1)},
                           {-minor(0, 2, 1, 2), minor(0, 2, 0, 2), -minor(0, 2, 0, 1)},
                           {minor(0, 1, 1, 2), -minor(0, 1, 0, 2), minor(0, 1, 0, 1)}};
  double determinant = m[0][0] * cofactor[0][0] + m[0][1] * cofactor[0][1] + m[0][2] * cofactor[0][2];
  if (std::fabs(determinant) < 1e-12) return std::nullopt;
  Transform inverse = kIdentity;
  for (int row = 0; row < 3; ++row) {
    for (int column = 0; column < 3; ++column) inverse[row][column] = cofactor[column][row] / determinant;
  }
  for (int column = 0; column < 3; ++column) {
    double sum = 0;
    for (int k = 0; k < 3; ++k) sum += m[3][k] * inverse[k][column];
    inverse[3][column] = -sum;
  }
  return inverse;
}

Point Apply(const Transform& m, const Point& point) {
  Point out{};
  for (int column = 0; column < 3; ++column) {
    out[column] = m[3][column];
    for (int row = 0; row < 3; ++row) out[column] += point[row] * m[row][column];
  }
  return out;
}

std::optional<Transform> PathPlacement(const HostState& state, const Model* top, const int* ids, int count) {
  Transform placement = kIdentity;
  const Model* model = top;
  for (int i = 0; i < count; ++i) {
    const auto& components = model->def.components;
    auto component = std::find_if(components.begin(), components.end(),
                                  [&](const ComponentDef& c) { return c.id == ids[i]; });
    if (component == components.end()) return std::nullopt;
    model = state.LiveModel(model->componentModels[component - components.begin()]);
    if (!model) return std::nullopt;
    placement = Then(component->transform, placement);
  }
  return placement;
}

}  // namespace sim
