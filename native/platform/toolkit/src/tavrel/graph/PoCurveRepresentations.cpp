// Representations of curves built through their default constructors only:
// a type, a catalog and a journaled constructor each.

#include <Corvel/CallJournal.h>
#include <Tavrel/PoBar.h>
#include <Tavrel/PoConicBar.h>
#include <Tavrel/PoCurveFilling.h>
#include <Tavrel/PoCurveLine.h>
#include <Tavrel/PoCylindricalBar.h>
#include <Tavrel/PoGeneralizedBar.h>
#include <Tavrel/PoGeneralizedScatter.h>
#include <Tavrel/PoLabel.h>
#include <Tavrel/PoLinearBar.h>
#include <Tavrel/PoProfileBar.h>
#include <Tavrel/PoRibbon.h>
#include <Tavrel/PoScatter.h>
#include <Tavrel/PoTube.h>

PO_GRAPH_KIT_SOURCE(PoCurveFilling, PoBase, "PoCurveFilling", {})
PoCurveFilling::PoCurveFilling() { CallJournal::record("PoCurveFilling::PoCurveFilling"); }
PoCurveFilling::~PoCurveFilling() = default;

PO_GRAPH_KIT_SOURCE(PoCurveLine, PoBase, "PoCurveLine", {})
PoCurveLine::PoCurveLine() { CallJournal::record("PoCurveLine::PoCurveLine"); }
PoCurveLine::~PoCurveLine() = default;

PO_GRAPH_KIT_SOURCE(PoLabel, PoBase, "PoLabel", {})
PoLabel::PoLabel() { CallJournal::record("PoLabel::PoLabel"); }
PoLabel::~PoLabel() = default;

PO_GRAPH_KIT_SOURCE(PoRibbon, PoBase, "PoRibbon", {})
PoRibbon::PoRibbon() { CallJournal::record("PoRibbon::PoRibbon"); }
PoRibbon::~PoRibbon() = default;

PO_GRAPH_KIT_SOURCE(PoTube, PoBase, "PoTube", {})
PoTube::PoTube() { CallJournal::record("PoTube::PoTube"); }
PoTube::~PoTube() = default;

PO_GRAPH_KIT_SOURCE(PoScatter, PoBase, "PoScatter", {})
PoScatter::PoScatter() { CallJournal::record("PoScatter::PoScatter"); }
PoScatter::~PoScatter() = default;

PO_GRAPH_KIT_SOURCE(PoGeneralizedScatter, PoBase, "PoGeneralizedScatter", {})
PoGeneralizedScatter::PoGeneralizedScatter() { CallJournal::record("PoGeneralizedScatter::PoGeneralizedScatter"); }
PoGeneralizedScatter::~PoGeneralizedScatter() = default;

PO_GRAPH_KIT_ABSTRACT_SOURCE(PoBar, PoBase, "PoBar", {"bars"})
PoBar::PoBar() = default;
PoBar::~PoBar() = default;

PO_GRAPH_KIT_SOURCE(PoProfileBar, PoBar, "PoProfileBar", {})
PoProfileBar::PoProfileBar() { CallJournal::record("PoProfileBar::PoProfileBar"); }
PoProfileBar::~PoProfileBar() = default;

PO_GRAPH_KIT_SOURCE(PoLinearBar, PoBar, "PoLinearBar", {})
PoLinearBar::PoLinearBar() { CallJournal::record("PoLinearBar::PoLinearBar"); }
PoLinearBar::~PoLinearBar() = default;

PO_GRAPH_KIT_SOURCE(PoConicBar, PoBar, "PoConicBar", {})
PoConicBar::PoConicBar() { CallJournal::record("PoConicBar::PoConicBar"); }
PoConicBar::~PoConicBar() = default;

PO_GRAPH_KIT_SOURCE(PoCylindricalBar, PoBar, "PoCylindricalBar", {})
PoCylindricalBar::PoCylindricalBar() { CallJournal::record("PoCylindricalBar::PoCylindricalBar"); }
PoCylindricalBar::~PoCylindricalBar() = default;

PO_GRAPH_KIT_SOURCE(PoGeneralizedBar, PoBar, "PoGeneralizedBar", {})
PoGeneralizedBar::PoGeneralizedBar() { CallJournal::record("PoGeneralizedBar::PoGeneralizedBar"); }
PoGeneralizedBar::~PoGeneralizedBar() = default;
