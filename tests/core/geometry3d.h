// Planes, lines and points in 64 bits: the roof as it stands in space. The tests measure rafters on it and
// compare them with the calculated ones. x runs along the main wall, y across the house, z up; walls are
// vertical, plates at z = 0.
#pragma once

#include <cmath>
#include <numbers>

namespace pitchcraft::geometry {

struct Vector {
  double x = 0;
  double y = 0;
  double z = 0;
};

inline Vector operator+(Vector a, Vector b) { return {a.x + b.x, a.y + b.y, a.z + b.z}; }
inline Vector operator-(Vector a, Vector b) { return {a.x - b.x, a.y - b.y, a.z - b.z}; }
inline Vector operator*(double k, Vector a) { return {k * a.x, k * a.y, k * a.z}; }
inline double Dot(Vector a, Vector b) { return a.x * b.x + a.y * b.y + a.z * b.z; }
inline Vector Cross(Vector a, Vector b) {
  return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}
inline double Norm(Vector a) { return std::sqrt(Dot(a, a)); }
inline Vector Unit(Vector a) { return (1 / Norm(a)) * a; }
inline Vector InPlan(Vector a) { return {a.x, a.y, 0}; }
inline double Distance(Vector a, Vector b) { return Norm(a - b); }
inline double PlanDistance(Vector a, Vector b) { return Norm(InPlan(a - b)); }

inline double Degrees(double radians) { return radians * 180 / std::numbers::pi; }
inline double Radians(double degrees) { return degrees * std::numbers::pi / 180; }
/// The angle between two lines with these directions, 0 to 90 degrees.
inline double AngleBetween(Vector a, Vector b) {
  return Degrees(std::atan2(Norm(Cross(a, b)), std::abs(Dot(a, b))));
}

/// The points p with normal . p = offset; the normal has length 1.
struct Plane {
  Plane(Vector n, Vector through) : normal(Unit(n)), offset(Dot(normal, through)) {}

  /// The same plane moved along its normal.
  Plane Moved(double distance) const { return {normal, (offset + distance) * normal}; }
  /// Height of the plane above a point of the plan.
  double HeightAt(Vector p) const { return (offset - normal.x * p.x - normal.y * p.y) / normal.z; }

  Vector normal;
  double offset;
};

/// The points origin + t direction.
struct Line {
  Vector origin;
  Vector direction;
};

/// The line in which two planes meet.
inline Line Intersect(const Plane& a, const Plane& b) {
  const Vector direction = Cross(a.normal, b.normal);
  const Vector origin = (1 / Dot(direction, direction)) *
                        (a.offset * Cross(b.normal, direction) + b.offset * Cross(direction, a.normal));
  return {origin, Unit(direction)};
}

/// The point in which a line pierces a plane.
inline Vector Intersect(const Line& line, const Plane& plane) {
  const double t = (plane.offset - Dot(plane.normal, line.origin)) / Dot(plane.normal, line.direction);
  return line.origin + t * line.direction;
}

/// A roof face that starts at height 0 over a wall through `wall` and rises `slope` for one unit towards
/// `inward`.
inline Plane RoofFace(Vector wall, Vector inward, double slope) {
  const Vector towards = Unit(InPlan(inward));
  return {{-slope * towards.x, -slope * towards.y, 1}, wall};
}

/// A vertical plane through a point, facing `across` in plan: a wall, a cheek of a board, the middle of a
/// rafter.
inline Plane Upright(Vector through, Vector across) { return {InPlan(across), through}; }

inline Plane AtX(double x) { return Upright({x, 0, 0}, {1, 0, 0}); }
inline Plane AtY(double y) { return Upright({0, y, 0}, {0, 1, 0}); }
inline Plane AtHeight(double z) { return {{0, 0, 1}, {0, 0, z}}; }

/// How far a face lies below a line on it when one goes `cheek` sideways, level, towards `side`: the wood
/// that a beam of twice that thickness must lose, or the depth that it must sink, to stay under the face.
inline double DropBeside(const Line& line, const Plane& face, double cheek, Vector side) {
  Vector sideways = Unit(Cross(InPlan(line.direction), {0, 0, 1}));
  if (Dot(sideways, side) < 0) sideways = -1 * sideways;
  return line.origin.z - face.HeightAt(line.origin + cheek * sideways);
}

/// Rise of a line for one unit of its own run.
inline double SlopeOf(const Line& line) { return std::abs(line.direction.z) / Norm(InPlan(line.direction)); }

}  // namespace pitchcraft::geometry
