// The letters that the windows are tested with. One family has them all, so that every machine that can paint
// a drawing tests the same.
#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QFont>
#include <QFontInfo>
#include <ostream>
#include <string>
#include <vector>

namespace pitchcraft::testing {

/// The face and size that tests count on where they do not say another.
inline QFont UsualFont() { return {"Liberation Sans", 9}; }

struct Face {
  const char* name;
  const char* family;
  int stretch;  ///< percent
  int points;

  QFont Font() const {
    QFont font(family, points);
    font.setStretch(stretch);
    return font;
  }
};

inline void PrintTo(const Face& face, std::ostream* out) { *out << face.name; }

/// Usual letters, letters of equal width, and letters wider than those of any desktop's own face; each as
/// most people have them and as people do who see badly.
inline std::vector<Face> AllFaces() {
  std::vector<Face> faces;
  for (const int points : {9, 13}) {
    const bool large = points > 9;
    faces.push_back({large ? "UsualLarge" : "Usual", "Liberation Sans", 100, points});
    faces.push_back({large ? "EqualWidthLarge" : "EqualWidth", "Liberation Mono", 100, points});
    faces.push_back({large ? "WideLarge" : "Wide", "Liberation Sans", 125, points});
  }
  return faces;
}

/// The desktop has those letters for as long as this lives. Widgets are made after it.
class WithFace {
 public:
  explicit WithFace(const Face& face) {
    EXPECT_EQ(QFontInfo(face.Font()).family(), face.family) << "fonts-liberation is not installed";
    QApplication::setFont(face.Font());
  }
  ~WithFace() { QApplication::setFont(UsualFont()); }
  WithFace(const WithFace&) = delete;
  WithFace& operator=(const WithFace&) = delete;
};

}  // namespace pitchcraft::testing
