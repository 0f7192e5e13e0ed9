// A started document with nobody around it.
#pragma once

#include <gtest/gtest.h>

#include <string>

#include "document/null_surroundings.h"
#include "support/document_api.h"

namespace pitchcraft {

class DocumentTest : public testing::Test {
 protected:
  DocumentTest() { Start(document); }

  /// Takes the action and fails the test where it is refused.
  void Type(const char* name, const char* text) { Expect(actions.Type(name, text)); }
  void Enter(const char* name, const char* text) { Expect(actions.Enter(name, text)); }
  void Edit(const char* name, const char* text) { Expect(actions.Edit(name, text)); }
  void Pick(const char* name, const char* item) { Expect(actions.Pick(name, item)); }
  void Check(const char* name, bool on) { Expect(actions.Check(name, on)); }
  void Click(const char* name) { Expect(actions.Click(name)); }
  void Page(int page) { Expect(actions.Page("VSTab(0)", page)); }
  static void Expect(const Refusal& refusal) { EXPECT_FALSE(refusal) << refusal.value_or(""); }

  NullSurroundings around;
  Document document{around.Get()};
  Actions actions{document};
  Sheet& sheet = document.design.sheet;
  Menus& menus = document.design.menus;
  Rafter& rafter = document.design.Rafter1;
};

}  // namespace pitchcraft
