#include "geometry/viewcamera.h"

#include <QtMath>

#include <algorithm>
#include <cmath>

namespace vkd {
namespace aniview {

namespace {
/// In degrees, less than a right angle, so that the direction still has an azimuth.
constexpr double Steepest = 89.9;

/// A direction in degrees. The azimuth is measured from x towards y.
struct Direction
{
    double azimuth;
    double elevation;
};

Direction directionOf(const Camera& camera)
{
    // Divides first, because the squares of very large or small components exceed the range of
    // double.
    const double* eye = camera.eye;
    const double largest = std::max({std::abs(eye[0]), std::abs(eye[1]), std::abs(eye[2])});
    const double x = eye[0] / largest;
    const double y = eye[1] / largest;
    const double level = std::hypot(x, y);
    if (level < 1e-9)
        return {-90.0, eye[2] > 0 ? 90.0 : -90.0};
    return {qRadiansToDegrees(std::atan2(y, x)),
            qRadiansToDegrees(std::atan2(eye[2] / largest, level))};
}

/// Returns exact values for multiples of a right angle, so that collinear elements cover each other
/// exactly in the standard views.
Position unitCircle(double degrees)
{
    const double quarter = degrees / 90.0;
    if (quarter == std::floor(quarter)) {
        const int turn = int(std::fmod(quarter, 4.0) + 4.0) % 4;
        return {turn == 0 ? 1.0 : (turn == 2 ? -1.0 : 0.0),
                turn == 1 ? 1.0 : (turn == 3 ? -1.0 : 0.0), 0.0};
    }
    return {std::cos(qDegreesToRadians(degrees)), std::sin(qDegreesToRadians(degrees)), 0.0};
}
} // namespace

double dot(const Position& a, const Position& b)
{
    return a[0] * b[0] + a[1] * b[1] + a[2] * b[2];
}

Position cross(const Position& a, const Position& b)
{
    return {a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2], a[0] * b[1] - a[1] * b[0]};
}

Position along(const Position& from, double distance, const Position& direction)
{
    return {from[0] + distance * direction[0], from[1] + distance * direction[1],
            from[2] + distance * direction[2]};
}

ViewAxes axesOf(const Camera& camera)
{
    const Direction direction = directionOf(camera);
    const Position level = unitCircle(direction.azimuth);
    const Position rise = unitCircle(direction.elevation);
    const Position eye{rise[0] * level[0], rise[0] * level[1], rise[1]};
    const Position right{-level[1], level[0], 0.0};
    const Position up = cross(eye, right);
    const Position roll = unitCircle(camera.roll);
    const Position none{};
    return {along(along(none, roll[0], right), -roll[1], up),
            along(along(none, roll[1], right), roll[0], up), eye};
}

Camera lookingFrom(const Position& eye)
{
    Camera camera;
    std::copy(eye.begin(), eye.end(), camera.eye);
    return camera;
}

bool showsAll(const Camera& camera)
{
    const double* centre = camera.centre;
    return camera.zoom == 1.0 && centre[0] == 0.0 && centre[1] == 0.0 && centre[2] == 0.0;
}

Camera turned(const Camera& camera, double right, double down)
{
    const Position roll = unitCircle(camera.roll);
    const double level = roll[0] * right - roll[1] * down;
    const double tilt = roll[1] * right + roll[0] * down;
    const Direction old = directionOf(camera);
    const double azimuth = qDegreesToRadians(old.azimuth - level);
    const double elevation = qDegreesToRadians(qBound(-Steepest, old.elevation + tilt, Steepest));
    Camera result = camera;
    result.eye[0] = std::cos(elevation) * std::cos(azimuth);
    result.eye[1] = std::cos(elevation) * std::sin(azimuth);
    result.eye[2] = std::sin(elevation);
    return result;
}

} // namespace aniview
} // namespace vkd
