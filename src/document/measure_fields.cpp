// Commits of the measurement fields, their lock boxes and spin buttons.
#include <algorithm>
#include <cmath>

#include "document/document.h"

namespace pitchcraft {

void Document::FtSpan_Commit(int Index) {
  Try("FtSpan_Commit", [&] {
    const double value = sheet.Span[static_cast<std::size_t>(Index)].Value();
    if (value < 0) return;
    if (Index == 0) {
      CommitMainSpan(value);
    } else if (Index == 1) {
      Rafter2.Span = value;
      Rafter2.Calculate();
    } else {
      CommitExtraSpan(value);
    }
  });
}

void Document::CommitMainSpan(double value) {
  Rafter1.Span = value;
  switch (RoofType) {
    case roof::kDutchHip:
      sheet.Face.SetValue(2 * value);
      sheet.Back.SetValue(sheet.Face.Value());
      return Rafter1.Calculate();
    case roof::kBlindValley:
      Rafter1.Calculate();
      FillBlindValleyRidges();
      return Draw(Drawing::kBlindValley, Rafter1);
    case roof::kHip:
      StandardTail(SlopesDiffer());
      if (sheet.HasLastCommon.Ticked()) {
        sheet.LastCommon.SetValue((Rafter1.Slope / Rafter1.HipEndSlope) * Rafter1.Span);
      }
      return;
    case roof::kOctagon:
      Rafter1.HipValSpan = 0;  // an octagon has one run given; the other follows
      return Rafter1.CalculateOctagon();
    case roof::kGambrel: return CalculateGambrelDimensions("Lower Span");
    case roof::kBay: return;
    default: return Rafter1.Calculate();
  }
}

void Document::CommitExtraSpan(double value) {
  switch (RoofType) {
    case roof::kOctagon:
      Rafter1.Span = 0;
      Rafter1.HipValSpan = value;
      return Rafter1.CalculateOctagon();
    case roof::kGambrel: return CalculateGambrelDimensions("Upper Span");
    default:
      // Of a Dutch hip this is the run of its common; the long valley of unequal spans waits for the next
      // calculation.
      sheet.Projection.SetValue(value);
      CalculateBayDimensions();
      return Rafter2.CalculateBay();
  }
}

void Document::FtSpan_Enter(int Index) {
  if (sheet.Span[static_cast<std::size_t>(Index)].Value() > 0) FtSpan_Commit(Index);
}

void Document::FtOverhang_Commit(int Index) {
  Try("FtOverhang_Commit", [&] {
    const double value = sheet.Overhang[static_cast<std::size_t>(Index)].Value();
    if (value < 0) return;
    if (Index == 1) {
      Rafter2.Overhang = value;
      return Rafter2.Calculate();
    }
    Rafter1.Overhang = value;
    // On a hip with equal slopes the overhang waits for the next calculation.
    if (RoofType == roof::kHip && !SlopesDiffer()) return;
    StandardTail(SlopesDiffer());
  });
}

void Document::FtHeel_Edit(int Index) {
  const auto row = static_cast<std::size_t>(Index);
  if (!sheet.HeelLock[row].Ticked()) return;
  (Index == 0 ? Rafter1 : Rafter2).Heel = sheet.Heel[row].Value();
}

void Document::FtSeat_Edit(int Index) {
  const auto row = static_cast<std::size_t>(Index);
  if (!sheet.SeatLock[row].Ticked()) return;
  (Index == 0 ? Rafter1 : Rafter2).Seat = sheet.Seat[row].Value();
}

void Document::FtHeel_Commit(int Index) { CommitHeelOrSeat(Index, false); }

void Document::FtSeat_Commit(int Index) { CommitHeelOrSeat(Index, true); }

// They matter only while locked: an unlocked entry is overwritten by the next result.
void Document::CommitHeelOrSeat(int Index, bool isSeat) {
  Try(isSeat ? "FtSeat_Commit" : "FtHeel_Commit", [&] {
    const auto row = static_cast<std::size_t>(Index);
    const char* changedField = isSeat ? "Seat" : "Heel";
    const bool locked = (isSeat ? sheet.SeatLock : sheet.HeelLock)[row].Ticked();
    if (!locked) {
      if (RoofType == roof::kGambrel) CalculateGambrelDimensions(changedField);
      return;
    }
    if (isSeat) {
      FtSeat_Edit(Index);
    } else {
      FtHeel_Edit(Index);
    }
    if (Index == 0) {
      if (RoofType == roof::kGambrel) return CalculateGambrelDimensions(changedField);
      FitCalculation();
    } else if (isSeat) {
      Rafter2.Calculate();  // a rear heel waits for the next calculation, a rear seat does not
    }
  });
}

void Document::chkHeel_Click(int Index) { LockClicked(Index, false); }

void Document::chkSeat_Click(int Index) { LockClicked(Index, true); }

// A heel and a seat cannot both be locked: each follows from the other.
void Document::LockClicked(int Index, bool isSeat) {
  Try(isSeat ? "chkSeat_Click" : "chkHeel_Click", [&] {
    const auto row = static_cast<std::size_t>(Index);
    Rafter& rafter = Index == 0 ? Rafter1 : Rafter2;
    CheckControl& own = (isSeat ? sheet.SeatLock : sheet.HeelLock)[row];
    CheckControl& other = (isSeat ? sheet.HeelLock : sheet.SeatLock)[row];
    MenuItem& ownItem = isSeat ? menus.SettingsSeatLocked : menus.SettingsHeelLocked;
    MenuItem& otherItem = isSeat ? menus.SettingsHeelLocked : menus.SettingsSeatLocked;
    Flag& ownLock = isSeat ? rafter.SeatLocked : rafter.HeelLocked;
    Flag& otherLock = isSeat ? rafter.HeelLocked : rafter.SeatLocked;
    ownItem.Checked = own.Ticked();
    ownLock = own.Ticked();
    if (own.Ticked()) {
      other.Value = 0;
      otherItem.Checked = false;
      otherLock = false;
    } else if (Index == 1) {
      Rafter2.Calculate();
    } else if (RoofType != roof::kGambrel) {
      FitCalculation();
    }
    Focus((isSeat ? sheet.Seat : sheet.Heel)[row]);
  });
}

void Document::chkKneewall_Click(int Index) {
  Try("chkKneewall_Click", [&] {
    const auto row = static_cast<std::size_t>(Index);
    Rafter& rafter = Index == 0 ? Rafter1 : Rafter2;
    const bool on = TakeTick(sheet.HasKneewall[row], sheet.Kneewall[row], sheet.Label[row]);
    rafter.Kneewall = on ? sheet.Kneewall[row].Value() : 0;
    rafter.Calculate();
    if (!on) FocusSlope(static_cast<std::size_t>(RoofPage()));
  });
}

void Document::chkLastCommon_Click(int) {
  Try("chkLastCommon_Click", [&] {
    const bool on = TakeTick(sheet.HasLastCommon, sheet.LastCommon, sheet.Label[23]);
    CalculateMain();
    if (!on) FocusSlope(IsBastardByRafter() ? 2 : 0);
  });
}

// A box that switches a field on and off: its own mark, the field, its label, the focus.
bool Document::TakeTick(CheckControl& box, MeasureControl& field, LabelControl& label) {
  const bool on = box.Ticked();
  box.Caption = on ? "a" : "";  // the tick of the symbol font
  field.Enabled = on;
  field.ForeColor = on ? CtlForeColor : kSystemGrayTextColor;
  label.Enabled = on;
  if (on) Focus(field);
  return on;
}

void Document::FtKneewall_Commit(int Index) {
  Try("FtKneewall_Commit", [&] {
    const double value = sheet.Kneewall[static_cast<std::size_t>(Index)].Value();
    if (!(value > 0)) return;
    Rafter& rafter = Index == 0 ? Rafter1 : Rafter2;
    rafter.Kneewall = value;
    rafter.Calculate();
  });
}

void Document::FtLastCommon_Commit(int) {
  Try("FtLastCommon_Commit", [&] {
    MeasureControl& field = sheet.LastCommon;
    if (field.Value() < Rafter1.HipEndSpan) {
      field.SetValue(Rafter1.HipEndSpan);
    } else if (field.Value() > Rafter1.HipEndSpan + Rafter1.spacing) {
      // A value that nobody uses, left over from another roof, is put right without a word.
      if (sheet.HasLastCommon.Ticked()) {
        MsgBox("Distance to last common cannot be more than the hipend span plus the rafter spacing (" +
               sheet.Spacing.Text() + ")");
      }
      field.SetValue(Rafter1.HipEndSpan);
    }
    Draw(Drawing::kHipPlan, Rafter1);
  });
}

void Document::FtLastCommon_Enter(int) {
  FtLastCommon_Commit();
  FocusSlope(0);
}

void Document::FtRidge_Commit(int Index) {
  Try("FtRidge_Commit", [&] {
    if (RoofType == roof::kGambrel)
      return CalculateGambrelDimensions(Index == 0 ? "Upper Height" : "Lower Height");
    CommitBlindValleyRidge(Index);
  });
}

// Of a blind valley's ridge lengths and main slope each fixes the two others.
void Document::CommitBlindValleyRidge(int Index) {
  const double given = sheet.RidgeLength[static_cast<std::size_t>(Index)].Value();
  if (given == 0) return;
  const Single theoreticalRise = TheoreticalRise();
  const Single actualRise = ActualRise();
  const Single mainSlope = UnitRun * (Index == 0 ? theoreticalRise : actualRise) / given;
  if (Index == 0) {
    sheet.RidgeLength[1].SetValue(UnitRun * actualRise / mainSlope);
  } else {
    sheet.RidgeLength[0].SetValue(UnitRun * theoreticalRise / mainSlope);
  }
  sheet.Slope[2].SetValues(mainSlope, UnitRun);
  Draw(Drawing::kBlindValley, Rafter1);
}

// Rise of the addition's roof over half its span, measured to the ridge line.
double Document::TheoreticalRise() const { return (Rafter1.Span / 2 * Rafter1.Slope) / UnitRun; }

// The same measured to the faces of the ridge board.
double Document::ActualRise() const {
  return ((Rafter1.Span - Rafter1.RidgeThickness) * Rafter1.Slope / 2) / UnitRun;
}

void Document::FillBlindValleyRidges() {
  const double mainSlope = sheet.Slope[2].LeftValue();
  const Single theoreticalRise = TheoreticalRise();
  const Single actualRise = ActualRise();
  sheet.RidgeLength[0].SetValue(UnitRun * theoreticalRise / mainSlope);
  sheet.RidgeLength[1].SetValue(UnitRun * actualRise / mainSlope);
}

// --- Spin buttons
// ---------------------------------------------------------------------------------------------------

void Document::Spin_Step(int Index, bool up) {
  struct Target {
    MeasureControl* field = nullptr;
    void (Document::*commit)(int) = nullptr;
    int index = 0;
  };
  const auto span = [this](int i) {
    return Target{&sheet.Span[static_cast<std::size_t>(i)], &Document::FtSpan_Commit, i};
  };
  const auto overhang = [this](int i) {
    return Target{&sheet.Overhang[static_cast<std::size_t>(i)], &Document::FtOverhang_Commit, i};
  };
  const auto ridge = [this](int i) {
    return Target{&sheet.RidgeLength[static_cast<std::size_t>(i)], &Document::FtRidge_Commit, i};
  };
  const bool gambrel = RoofType == roof::kGambrel;
  //                            Spin(0)   (1)           (2)      (3)       (4)       (5)      (6) (7)
  const Target usual[] = {span(0), overhang(0), span(2), ridge(0), ridge(1), span(1), overhang(1), {}};
  const Target onGambrel[] = {{}, overhang(0), span(2), span(0), ridge(0), {}, {}, ridge(1)};
  const Target& target = (gambrel ? onGambrel : usual)[Index];
  if (target.field == nullptr) return;
  Try("Spin_Step", [&] {
    const double step = Imperial() ? Increment : MetricIncrement;
    double value = target.field->Value();
    if (up) {
      value += step;
    } else {
      if (gambrel || value > 0) value -= step;
      value = std::max(value, 0.0);
    }
    target.field->SetValue(value);
    (this->*target.commit)(target.index);
  });
}

double Document::CheckOverhang(int Index, const Rafter& Rafter) const {
  if (menus.SettingsSquareCut.Checked) return 0;
  // At slope 0 the angle is a plain 90, read as radians like the others: there is no fascia to speak of then.
  const double angle = Rafter.Slope == 0 ? 90.0 : std::atan(UnitRun / Rafter.Slope);
  const double dx = std::abs(Rafter.Depth * std::cos(-angle));
  return sheet.Overhang[static_cast<std::size_t>(Index)].Value() < dx ? dx : 0;
}

}  // namespace pitchcraft
