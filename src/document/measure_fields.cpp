// Commits of the measurement fields, their lock boxes and spin buttons.
#include <algorithm>
#include <cmath>

#include "document/frm_document.h"

namespace pitchcraft {

void frmDocument::FtSpan_Commit(int Index) {
  Try("FtSpan_Commit", [&] {
    const double value = sheet.FtSpan[static_cast<std::size_t>(Index)].Value();
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

void frmDocument::CommitMainSpan(double value) {
  Rafter1.Span = value;
  switch (RoofType) {
    case roof::kDutchHip:
      sheet.FtFace.SetValue(2 * value);
      sheet.FtBack.SetValue(sheet.FtFace.Value());
      return Rafter1.Calculate();
    case roof::kBlindValley:
      Rafter1.Calculate();
      FillBlindValleyRidges();
      return Draw(Drawing::kBlindValley, Rafter1);
    case roof::kHip:
      StandardTail(SlopesDiffer());
      if (sheet.chkLastCommon.Ticked()) {
        sheet.FtLastCommon.SetValue((Rafter1.Slope / Rafter1.HipEndSlope) * Rafter1.Span);
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

void frmDocument::CommitExtraSpan(double value) {
  switch (RoofType) {
    case roof::kOctagon:
      Rafter1.Span = 0;
      Rafter1.HipValSpan = value;
      return Rafter1.CalculateOctagon();
    case roof::kGambrel: return CalculateGambrelDimensions("Upper Span");
    default:
      // Of a Dutch hip this is the run of its common; the long valley of unequal spans waits for the next
      // calculation.
      sheet.FtProjection.SetValue(value);
      CalculateBayDimensions();
      return Rafter2.CalculateBay();
  }
}

void frmDocument::FtSpan_Enter(int Index) {
  if (sheet.FtSpan[static_cast<std::size_t>(Index)].Value() > 0) FtSpan_Commit(Index);
}

void frmDocument::FtOverhang_Commit(int Index) {
  Try("FtOverhang_Commit", [&] {
    const double value = sheet.FtOverhang[static_cast<std::size_t>(Index)].Value();
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

void frmDocument::FtHeel_Edit(int Index) {
  const auto row = static_cast<std::size_t>(Index);
  if (!sheet.chkHeel[row].Ticked()) return;
  (Index == 0 ? Rafter1 : Rafter2).Heel = sheet.FtHeel[row].Value();
}

void frmDocument::FtSeat_Edit(int Index) {
  const auto row = static_cast<std::size_t>(Index);
  if (!sheet.chkSeat[row].Ticked()) return;
  (Index == 0 ? Rafter1 : Rafter2).Seat = sheet.FtSeat[row].Value();
}

void frmDocument::FtHeel_Commit(int Index) { CommitHeelOrSeat(Index, false); }

void frmDocument::FtSeat_Commit(int Index) { CommitHeelOrSeat(Index, true); }

// They matter only while locked: an unlocked entry is overwritten by the next result.
void frmDocument::CommitHeelOrSeat(int Index, bool isSeat) {
  Try(isSeat ? "FtSeat_Commit" : "FtHeel_Commit", [&] {
    const auto row = static_cast<std::size_t>(Index);
    const char* changedField = isSeat ? "Seat" : "Heel";
    const bool locked = (isSeat ? sheet.chkSeat : sheet.chkHeel)[row].Ticked();
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

void frmDocument::chkHeel_Click(int Index) { LockClicked(Index, false); }

void frmDocument::chkSeat_Click(int Index) { LockClicked(Index, true); }

// A heel and a seat cannot both be locked: each follows from the other.
void frmDocument::LockClicked(int Index, bool isSeat) {
  Try(isSeat ? "chkSeat_Click" : "chkHeel_Click", [&] {
    const auto row = static_cast<std::size_t>(Index);
    CRafter& rafter = Index == 0 ? Rafter1 : Rafter2;
    CheckControl& own = (isSeat ? sheet.chkSeat : sheet.chkHeel)[row];
    CheckControl& other = (isSeat ? sheet.chkHeel : sheet.chkSeat)[row];
    MenuItem& ownItem = isSeat ? menus.mnuSettingsSeatLocked : menus.mnuSettingsHeelLocked;
    MenuItem& otherItem = isSeat ? menus.mnuSettingsHeelLocked : menus.mnuSettingsSeatLocked;
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
    Focus((isSeat ? sheet.FtSeat : sheet.FtHeel)[row]);
  });
}

void frmDocument::chkKneewall_Click(int Index) {
  Try("chkKneewall_Click", [&] {
    const auto row = static_cast<std::size_t>(Index);
    CRafter& rafter = Index == 0 ? Rafter1 : Rafter2;
    const bool on = TakeTick(sheet.chkKneewall[row], sheet.FtKneewall[row], sheet.Label[row]);
    rafter.Kneewall = on ? sheet.FtKneewall[row].Value() : 0;
    rafter.Calculate();
    if (!on) FocusSlope(static_cast<std::size_t>(RoofPage()));
  });
}

void frmDocument::chkLastCommon_Click(int) {
  Try("chkLastCommon_Click", [&] {
    const bool on = TakeTick(sheet.chkLastCommon, sheet.FtLastCommon, sheet.Label[23]);
    CalculateMain();
    if (!on) FocusSlope(IsBastardByRafter() ? 2 : 0);
  });
}

// A box that switches a field on and off: its own mark, the field, its label, the focus.
bool frmDocument::TakeTick(CheckControl& box, FtInText& field, LabelControl& label) {
  const bool on = box.Ticked();
  box.Caption = on ? "a" : "";  // the tick of the symbol font
  field.Enabled = on;
  field.ForeColor = on ? CtlForeColor : kSystemGrayTextColor;
  label.Enabled = on;
  if (on) Focus(field);
  return on;
}

void frmDocument::FtKneewall_Commit(int Index) {
  Try("FtKneewall_Commit", [&] {
    const double value = sheet.FtKneewall[static_cast<std::size_t>(Index)].Value();
    if (!(value > 0)) return;
    CRafter& rafter = Index == 0 ? Rafter1 : Rafter2;
    rafter.Kneewall = value;
    rafter.Calculate();
  });
}

void frmDocument::FtLastCommon_Commit(int) {
  Try("FtLastCommon_Commit", [&] {
    FtInText& field = sheet.FtLastCommon;
    if (field.Value() < Rafter1.HipEndSpan) {
      field.SetValue(Rafter1.HipEndSpan);
    } else if (field.Value() > Rafter1.HipEndSpan + Rafter1.spacing) {
      // A value that nobody uses, left over from another roof, is put right without a word.
      if (sheet.chkLastCommon.Ticked()) {
        MsgBox("Distance to last common cannot be more than the hipend span plus the rafter spacing (" +
               sheet.cboSpacing.Text() + ")");
      }
      field.SetValue(Rafter1.HipEndSpan);
    }
    Draw(Drawing::kHipPlan, Rafter1);
  });
}

void frmDocument::FtLastCommon_Enter(int) {
  FtLastCommon_Commit();
  FocusSlope(0);
}

void frmDocument::FtRidge_Commit(int Index) {
  Try("FtRidge_Commit", [&] {
    if (RoofType == roof::kGambrel)
      return CalculateGambrelDimensions(Index == 0 ? "Upper Height" : "Lower Height");
    CommitBlindValleyRidge(Index);
  });
}

// Of a blind valley's ridge lengths and main slope each fixes the two others.
void frmDocument::CommitBlindValleyRidge(int Index) {
  const double given = sheet.FtRidge[static_cast<std::size_t>(Index)].Value();
  if (given == 0) return;
  const Single theoreticalRise = TheoreticalRise();
  const Single actualRise = ActualRise();
  const Single mainSlope = UnitRun * (Index == 0 ? theoreticalRise : actualRise) / given;
  if (Index == 0) {
    sheet.FtRidge[1].SetValue(UnitRun * actualRise / mainSlope);
  } else {
    sheet.FtRidge[0].SetValue(UnitRun * theoreticalRise / mainSlope);
  }
  sheet.LWSlope[2].SetValues(mainSlope, UnitRun);
  Draw(Drawing::kBlindValley, Rafter1);
}

// Rise of the addition's roof over half its span, measured to the ridge line.
double frmDocument::TheoreticalRise() const { return (Rafter1.Span / 2 * Rafter1.Slope) / UnitRun; }

// The same measured to the faces of the ridge board.
double frmDocument::ActualRise() const {
  return ((Rafter1.Span - Rafter1.RidgeThickness) * Rafter1.Slope / 2) / UnitRun;
}

void frmDocument::FillBlindValleyRidges() {
  const double mainSlope = sheet.LWSlope[2].LeftValue();
  const Single theoreticalRise = TheoreticalRise();
  const Single actualRise = ActualRise();
  sheet.FtRidge[0].SetValue(UnitRun * theoreticalRise / mainSlope);
  sheet.FtRidge[1].SetValue(UnitRun * actualRise / mainSlope);
}

// --- Spin buttons
// ---------------------------------------------------------------------------------------------------

void frmDocument::Spin_Step(int Index, bool up) {
  struct Target {
    FtInText* field = nullptr;
    void (frmDocument::*commit)(int) = nullptr;
    int index = 0;
  };
  const auto span = [this](int i) {
    return Target{&sheet.FtSpan[static_cast<std::size_t>(i)], &frmDocument::FtSpan_Commit, i};
  };
  const auto overhang = [this](int i) {
    return Target{&sheet.FtOverhang[static_cast<std::size_t>(i)], &frmDocument::FtOverhang_Commit, i};
  };
  const auto ridge = [this](int i) {
    return Target{&sheet.FtRidge[static_cast<std::size_t>(i)], &frmDocument::FtRidge_Commit, i};
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

double frmDocument::CheckOverhang(int Index, const CRafter& Rafter) const {
  if (menus.mnuSettingsSquareCut.Checked) return 0;
  // At slope 0 the angle is a plain 90, read as radians like the others: there is no fascia to speak of then.
  const double angle = Rafter.Slope == 0 ? 90.0 : std::atan(UnitRun / Rafter.Slope);
  const double dx = std::abs(Rafter.Depth * std::cos(-angle));
  return sheet.FtOverhang[static_cast<std::size_t>(Index)].Value() < dx ? dx : 0;
}

}  // namespace pitchcraft
