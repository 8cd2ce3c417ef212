// The attribute property nodes: bevel edge, data mappings, date format
// mapping, domain, isovalues list, label and 1D-mesh hints, text attributes,
// numeric format, the 1D-mesh filters, the interval cell filter and the
// profiles (see their headers and PoPropertyNode.h).

#include <Corvel/CallJournal.h>
#include <Corvel/SoAction.h>
#include <Corvel/SoField.h>
#include <Corvel/SoState.h>
#include <Tavrel/PbMesh.h>
#include <Tavrel/PoBevelEdgeElement.h>
#include <Tavrel/PoDataMappingElement.h>
#include <Tavrel/PoDateFormatMappingElement.h>
#include <Tavrel/PoDomainElement.h>
#include <Tavrel/PoIsovaluesListElement.h>
#include <Tavrel/PoLabelHintsElement.h>
#include <Tavrel/PoMesh1DFilterElement.h>
#include <Tavrel/PoMesh1DHintsElement.h>
#include <Tavrel/PoMiscTextAttrElement.h>
#include <Tavrel/PoNumericDisplayFormatElement.h>
#include <Tavrel/PoProfileElement.h>
#include <Tavrel/PoBevelEdge.h>
#include <Tavrel/PoCircularProfile.h>
#include <Tavrel/PoCoordinateListFilter.h>
#include <Tavrel/PoDataMapping.h>
#include <Tavrel/PoDateFormatMapping.h>
#include <Tavrel/PoDomain.h>
#include <Tavrel/PoEllipticProfile.h>
#include <Tavrel/PoIndexListFilter.h>
#include <Tavrel/PoIntervalCellFilter.h>
#include <Tavrel/PoIsovaluesList.h>
#include <Tavrel/PoLabelHints.h>
#include <Tavrel/PoLinearDataMapping.h>
#include <Tavrel/PoMesh1DFilter.h>
#include <Tavrel/PoMesh1DHints.h>
#include <Tavrel/PoMiscTextAttr.h>
#include <Tavrel/PoNonLinearDataMapping.h>
#include <Tavrel/PoNonLinearDataMapping2.h>
#include <Tavrel/PoNumericDisplayFormat.h>
#include <Tavrel/PoPeriodFilter.h>
#include <Tavrel/PoPeriodIndexFilter.h>
#include <Tavrel/PoProfile.h>
#include <Tavrel/PoProfileCoordinate2.h>
#include <Tavrel/PoSquareProfile.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>

// --- field texts ---------------------------------------------------------------------------

namespace po_fields {

namespace {
const char* textOf(const SoField* field) { return field != nullptr ? field->getValueString().getString() : ""; }

// Reads up to count numbers from the start of text; returns how many.
int readNumbers(const char* text, float* out, int count) {
  int read = 0;
  const char* p = text;
  while (read < count) {
    char* end = nullptr;
    const float v = std::strtof(p, &end);
    if (end == p) break;
    out[read++] = v;
    p = end;
  }
  return read;
}
}  // namespace

float readFloat(const SoField* field, float defaultValue) {
  float v = 0.0f;
  return readNumbers(textOf(field), &v, 1) == 1 ? v : defaultValue;
}

int readInt(const SoField* field, int defaultValue) {
  const char* text = textOf(field);
  // A few plain digits, the usual text, read here; anything else as strtol reads it.
  int digits = 0;
  int value = 0;
  while (digits < 9 && text[digits] >= '0' && text[digits] <= '9') value = value * 10 + (text[digits++] - '0');
  if (digits > 0 && text[digits] == '\0') return value;
  char* end = nullptr;
  const long v = std::strtol(text, &end, 10);
  if (end == text || v < -2147483647L - 1 || v > 2147483647L) return defaultValue;
  return static_cast<int>(v);
}

bool readFlag(const SoField* field, bool defaultValue) {
  char word[8] = {};
  if (std::sscanf(textOf(field), " %7s", word) != 1) return defaultValue;
  if (std::strcmp(word, "TRUE") == 0 || std::strcmp(word, "1") == 0) return true;
  if (std::strcmp(word, "FALSE") == 0 || std::strcmp(word, "0") == 0) return false;
  return defaultValue;
}

SbVec3f readVec3(const SoField* field, const SbVec3f& defaultValue) {
  float v[3] = {0.0f, 0.0f, 0.0f};
  const int read = readNumbers(textOf(field), v, 3);
  if (read < 2) return defaultValue;
  return SbVec3f(v[0], v[1], read == 3 ? v[2] : 0.0f);
}

SbColor readColor(const SoField* field, const SbColor& defaultValue) {
  float v[3];
  return readNumbers(textOf(field), v, 3) == 3 ? SbColor(v[0], v[1], v[2]) : defaultValue;
}

std::vector<float> readFloats(const SoField* field) {
  std::vector<float> values;
  const char* p = textOf(field);
  for (;;) {
    char* end = nullptr;
    const float v = std::strtof(p, &end);
    if (end == p) break;
    values.push_back(v);
    p = end;
  }
  return values;
}

SbString readText(const SoField* field) { return SbString(textOf(field)); }

}  // namespace po_fields

using namespace po_fields;

namespace {
SoField* field(SoFieldContainer* node, const char* name, const char* initial) {
  CallJournal::Quiet quiet;
  SoField* f = node->addOwnField(name);
  f->setValueString(initial);
  return f;
}

SoState* stateOf(SoAction* action) { return action != nullptr ? action->getState() : nullptr; }

// The node as the state's elements name it (they hold a reference on it).
SoNode* self(const SoNode* node) { return const_cast<SoNode*>(node); }
}  // namespace

// Type, construction, doAction and destruction of a property node; the
// constructor's body (the fields) follows the macro.
#define PO_PROPERTY_NODE_SOURCE(className, parentName)                          \
  SO_NODE_SOURCE(className, parentName, #className)                             \
  className::~className() = default;                                            \
  void className::doAction(SoAction* action) {                                  \
    CallJournal::record(#className "::doAction", static_cast<const void*>(action)); \
    makeCurrent(action);                                                        \
    traverseChildren(action);                                                   \
  }

// Type and destruction of a node whose base does doAction.
#define PO_SUBCLASS_SOURCE(className, parentName)   \
  SO_NODE_SOURCE(className, parentName, #className) \
  className::~className() = default;

// --- PoBevelEdge -----------------------------------------------------------------------------

PO_PROPERTY_NODE_SOURCE(PoBevelEdge, PoNode)

PoBevelEdge::PoBevelEdge()
    : onField(field(this, "on", "TRUE")),
      angleField(field(this, "angle", "0.5")),
      radiusField(field(this, "radius", "0.05")),
      radiusFlagField(field(this, "radiusFlag", "0")) {
  CallJournal::record("PoBevelEdge::PoBevelEdge");
}

bool PoBevelEdge::isOn() const { return readFlag(onField, true); }
float PoBevelEdge::getAngle() const { return readFloat(angleField, 0.5f); }
float PoBevelEdge::getRadius() const { return readFloat(radiusField, 0.05f); }
PoBevelEdge::RadiusFlag PoBevelEdge::getRadiusFlag() const {
  return static_cast<RadiusFlag>(readInt(radiusFlagField, ABSOLUTERADIUS));
}

void PoBevelEdge::makeCurrent(SoAction* action) const {
  if (SoState* state = stateOf(action))
    PoBevelEdgeElement::setValue(state, self(this), isOn() ? 1 : 0, getAngle(), getRadiusFlag(), getRadius());
}

// --- data mappings -------------------------------------------------------------------------

SO_NODE_ABSTRACT_SOURCE(PoDataMapping, PoNode, "PoDataMapping")

PoDataMapping::PoDataMapping() = default;
PoDataMapping::~PoDataMapping() = default;

void PoDataMapping::doAction(SoAction* action) {
  CallJournal::record("PoDataMapping::doAction", static_cast<const void*>(action));
  makeCurrent(action);
  traverseChildren(action);
}

void PoDataMapping::makeCurrent(SoAction* action) const {
  if (SoState* state = stateOf(action)) PoDataMappingElement::setValue(state, self(this), getMapping());
}

PO_SUBCLASS_SOURCE(PoLinearDataMapping, PoDataMapping)

PoLinearDataMapping::PoLinearDataMapping()
    : value1Field(field(this, "value1", "0")),
      color1Field(field(this, "color1", "0 0 0")),
      value2Field(field(this, "value2", "1")),
      color2Field(field(this, "color2", "1 1 1")) {
  CallJournal::record("PoLinearDataMapping::PoLinearDataMapping");
}

const PbDataMapping* PoLinearDataMapping::getMapping() const {
  CallJournal::Quiet quiet;
  mapping.setValues(readFloat(value1Field, 0.0f), readColor(color1Field, SbColor(0, 0, 0)),
                    readFloat(value2Field, 1.0f), readColor(color2Field, SbColor(1, 1, 1)));
  return &mapping;
}

PO_SUBCLASS_SOURCE(PoNonLinearDataMapping, PoDataMapping)

PoNonLinearDataMapping::PoNonLinearDataMapping() {
  CallJournal::record("PoNonLinearDataMapping::PoNonLinearDataMapping");
}

const PbDataMapping* PoNonLinearDataMapping::getMapping() const { return &mapping; }

PO_SUBCLASS_SOURCE(PoNonLinearDataMapping2, PoDataMapping)

PoNonLinearDataMapping2::PoNonLinearDataMapping2()
    : typeField(field(this, "type", "0")), valueField(field(this, "value", "")), colorField(field(this, "color", "")) {
  CallJournal::record("PoNonLinearDataMapping2::PoNonLinearDataMapping2");
}

const PbDataMapping* PoNonLinearDataMapping2::getMapping() const {
  CallJournal::Quiet quiet;
  const int type = readInt(typeField, NONLINEARPERLEVEL) == LINEARPERLEVEL ? LINEARPERLEVEL : NONLINEARPERLEVEL;
  const std::vector<float> values = readFloats(valueField);
  const std::vector<float> numbers = readFloats(colorField);
  const int num = static_cast<int>(values.size());
  const int numColors = type == LINEARPERLEVEL ? num : num + 1;
  std::vector<SbColor> colors(static_cast<std::size_t>(numColors));
  for (int i = 0; i < numColors && 3 * i + 2 < static_cast<int>(numbers.size()); ++i)
    colors[i] = SbColor(numbers[3 * i], numbers[3 * i + 1], numbers[3 * i + 2]);
  mapping.setValues(static_cast<PbNonLinearDataMapping2::Type>(type), num, values.data(), colors.data());
  return &mapping;
}

// --- PoDateFormatMapping ---------------------------------------------------------------------

PO_PROPERTY_NODE_SOURCE(PoDateFormatMapping, PoNode)

PoDateFormatMapping::PoDateFormatMapping()
    : date1Field(field(this, "date1", "2000-01-01")),
      date2Field(field(this, "date2", "2000-01-02")),
      coord1Field(field(this, "coord1", "0")),
      coord2Field(field(this, "coord2", "1")),
      formatField(field(this, "format", "%Y-%m-%d")) {
  CallJournal::record("PoDateFormatMapping::PoDateFormatMapping");
}

const PbDateFormatMapping* PoDateFormatMapping::getMapping() const {
  CallJournal::Quiet quiet;
  mapping.setDateMapping("2000-01-01", "2000-01-02", 0.0f, 1.0f);
  mapping.setFormat(SbString("%Y-%m-%d"));
  mapping.setDateMapping(readText(date1Field).getString(), readText(date2Field).getString(),
                         readFloat(coord1Field, 0.0f), readFloat(coord2Field, 1.0f));
  mapping.setFormat(readText(formatField));
  return &mapping;
}

int PoDateFormatMapping::getCoordinate(const char* date, float& coord) const {
  CallJournal::record("PoDateFormatMapping::getCoordinate", date);
  const PbDateFormatMapping* current = getMapping();
  CallJournal::Quiet quiet;
  return current->getCoordinate(SbString(date), coord);
}

void PoDateFormatMapping::makeCurrent(SoAction* action) const {
  if (SoState* state = stateOf(action)) PoDateFormatMappingElement::setValue(state, self(this), getMapping());
}

// --- PoDomain --------------------------------------------------------------------------------

PO_PROPERTY_NODE_SOURCE(PoDomain, PoNode)

PoDomain::PoDomain()
    : minField(field(this, "min", "0 0 0")),
      maxField(field(this, "max", "1 1 1")),
      is2DField(field(this, "is2D", "FALSE")),
      bndBoxTypeField(field(this, "bndBoxType", "0")),
      transformTypeField(field(this, "transformType", "0")) {
  CallJournal::record("PoDomain::PoDomain");
}

namespace {
std::string vecText(const float* v, int n) {
  std::string text;
  char buf[32];
  for (int i = 0; i < n; ++i) {
    std::snprintf(buf, sizeof buf, "%s%.9g", i ? " " : "", static_cast<double>(v[i]));
    text += buf;
  }
  return text;
}
}  // namespace

void PoDomain::setValues(const SbVec2f& min, const SbVec2f& max, BoundingBoxType type) {
  CallJournal::record("PoDomain::setValues", min, max, static_cast<int>(type));
  const float lo[3] = {min[0], min[1], 0.0f};
  const float hi[3] = {max[0], max[1], 0.0f};
  minField->setValueString(vecText(lo, 3));
  maxField->setValueString(vecText(hi, 3));
  is2DField->setValueString("TRUE");
  bndBoxTypeField->setValueString(std::to_string(static_cast<int>(type)));
}

void PoDomain::setValues(const SbVec3f& min, const SbVec3f& max, BoundingBoxType type) {
  CallJournal::record("PoDomain::setValues", min, max, static_cast<int>(type));
  minField->setValueString(vecText(min.getValue(), 3));
  maxField->setValueString(vecText(max.getValue(), 3));
  is2DField->setValueString("FALSE");
  bndBoxTypeField->setValueString(std::to_string(static_cast<int>(type)));
}

const PbDomain* PoDomain::getDomain() const {
  CallJournal::Quiet quiet;
  const SbVec3f lo = readVec3(minField, SbVec3f(0, 0, 0));
  const SbVec3f hi = readVec3(maxField, SbVec3f(1, 1, 1));
  const auto boxType = static_cast<PbDomain::BoundingBoxType>(readInt(bndBoxTypeField, ASIS));
  if (readFlag(is2DField, false))
    domain.setDomain(lo[0], lo[1], hi[0], hi[1], boxType);
  else
    domain.setDomain(lo[0], lo[1], lo[2], hi[0], hi[1], hi[2], boxType);
  domain.setTransformType(static_cast<PbDomain::TransformType>(readInt(transformTypeField, TRANSFORM01)));
  return &domain;
}

SoNode* PoDomain::getTransform() const {
  CallJournal::record("PoDomain::getTransform");
  return nullptr;
}

const SbMatrix* PoDomain::getMatrixTransform() const {
  CallJournal::record("PoDomain::getMatrixTransform");
  const PbDomain* current = getDomain();
  CallJournal::Quiet quiet;
  return current->getMatrixTransform();
}

void PoDomain::makeCurrent(SoAction* action) const {
  if (SoState* state = stateOf(action)) PoDomainElement::setValue(state, self(this), getDomain());
}

// --- PoIsovaluesList -------------------------------------------------------------------------

PO_PROPERTY_NODE_SOURCE(PoIsovaluesList, PoNode)

PoIsovaluesList::PoIsovaluesList() {
  CallJournal::record("PoIsovaluesList::PoIsovaluesList");
}

void PoIsovaluesList::setRegularIsoList(int numValues, const float* values, int num) {
  CallJournal::record("PoIsovaluesList::setRegularIsoList(int, float*, int)", numValues,
                      journalArray(values, values != nullptr && numValues > 0 ? numValues : 0), num);
  CallJournal::Quiet quiet;
  list.setRegularIsoList(numValues, values, num);
}

void PoIsovaluesList::setRegularIsoList(int num, float origin, float step) {
  CallJournal::record("PoIsovaluesList::setRegularIsoList(int, float, float)", num, origin, step);
  CallJournal::Quiet quiet;
  list.setRegularIsoList(num, origin, step);
}

void PoIsovaluesList::setRegularIsoList(float min, float max, int num) {
  CallJournal::record("PoIsovaluesList::setRegularIsoList(float, float, int)", min, max, num);
  CallJournal::Quiet quiet;
  list.setRegularIsoList(min, max, num);
}

const float* PoIsovaluesList::getIsoList(int& num, float& min, float& max, float& step, SbBool& isRegular) const {
  CallJournal::record("PoIsovaluesList::getIsoList");
  CallJournal::Quiet quiet;
  return list.getIsoList(num, min, max, step, isRegular);
}

void PoIsovaluesList::makeCurrent(SoAction* action) const {
  if (SoState* state = stateOf(action)) PoIsovaluesListElement::setValue(state, self(this), &list);
}

// --- hints, text attributes, numeric format --------------------------------------------------

PO_PROPERTY_NODE_SOURCE(PoLabelHints, PoNode)

PoLabelHints::PoLabelHints()
    : labelPathField(field(this, "labelPath", "0")), justificationField(field(this, "justification", "0")) {
  CallJournal::record("PoLabelHints::PoLabelHints");
}

PoLabelHints::LabelPath PoLabelHints::getLabelPath() const {
  return static_cast<LabelPath>(readInt(labelPathField, PATHRIGHT));
}
PoLabelHints::Justification PoLabelHints::getJustification() const {
  return static_cast<Justification>(readInt(justificationField, LEFT));
}

void PoLabelHints::makeCurrent(SoAction* action) const {
  if (SoState* state = stateOf(action))
    PoLabelHintsElement::setValue(state, self(this), getLabelPath(), getJustification(), nullptr, 0, 0);
}

PO_PROPERTY_NODE_SOURCE(PoMesh1DHints, PoNode)

PoMesh1DHints::PoMesh1DHints() : geomInterpretationField(field(this, "geomInterpretation", "0")) {
  CallJournal::record("PoMesh1DHints::PoMesh1DHints");
}

PoMesh1DHints::GeomInterpretation PoMesh1DHints::getGeomInterpretation() const {
  return static_cast<GeomInterpretation>(readInt(geomInterpretationField, ASIS));
}

void PoMesh1DHints::makeCurrent(SoAction* action) const {
  if (SoState* state = stateOf(action)) PoMesh1DHintsElement::setValue(state, self(this), getGeomInterpretation());
}

PO_PROPERTY_NODE_SOURCE(PoMiscTextAttr, PoNode)

PoMiscTextAttr::PoMiscTextAttr()
    : fontNameField(field(this, "fontName", "Sans")),
      lineLengthTypeField(field(this, "lineLengthType", "0")),
      lineLengthField(field(this, "lineLength", "0")) {
  CallJournal::record("PoMiscTextAttr::PoMiscTextAttr");
}

const PbMiscTextAttr* PoMiscTextAttr::getTextAttr() const {
  CallJournal::Quiet quiet;
  textAttr.setFontName(readText(fontNameField));
  textAttr.setLineLength(static_cast<char>(readInt(lineLengthTypeField, LINELENGTHMAX)),
                         readInt(lineLengthField, 0));
  return &textAttr;
}

void PoMiscTextAttr::makeCurrent(SoAction* action) const {
  if (SoState* state = stateOf(action)) PoMiscTextAttrElement::setValue(state, self(this), getTextAttr());
}

PO_PROPERTY_NODE_SOURCE(PoNumericDisplayFormat, PoNode)

PoNumericDisplayFormat::PoNumericDisplayFormat()
    : formatTypeField(field(this, "formatType", "0")),
      widthField(field(this, "width", "0")),
      precisionField(field(this, "precision", "6")),
      format(PbNumericDisplayFormat::AUTOFORMAT, 0, 6) {
  CallJournal::record("PoNumericDisplayFormat::PoNumericDisplayFormat");
}

const PbNumericDisplayFormat* PoNumericDisplayFormat::getFormat() const {
  CallJournal::Quiet quiet;
  format.setFormat(static_cast<PbNumericDisplayFormat::FormatType>(readInt(formatTypeField, AUTOFORMAT)),
                   readInt(widthField, 0), readInt(precisionField, 6));
  return &format;
}

void PoNumericDisplayFormat::makeCurrent(SoAction* action) const {
  if (SoState* state = stateOf(action)) PoNumericDisplayFormatElement::setValue(state, self(this), getFormat());
}

// --- 1D-mesh filters -------------------------------------------------------------------------

SO_NODE_ABSTRACT_SOURCE(PoMesh1DFilter, PoNode, "PoMesh1DFilter")

PoMesh1DFilter::PoMesh1DFilter() = default;
PoMesh1DFilter::~PoMesh1DFilter() = default;

void PoMesh1DFilter::doAction(SoAction* action) {
  CallJournal::record("PoMesh1DFilter::doAction", static_cast<const void*>(action));
  makeCurrent(action);
  traverseChildren(action);
}

void PoMesh1DFilter::makeCurrent(SoAction* action) const {
  if (SoState* state = stateOf(action)) PoMesh1DFilterElement::setValue(state, self(this), this);
}

std::vector<int> PoMesh1DFilter::selectPoints(const PoMesh1DFilter* filter, const PbMesh& mesh) {
  CallJournal::Quiet quiet;
  const int numPoints = mesh.getNumNodes();
  std::vector<float> x(static_cast<std::size_t>(numPoints)), y(static_cast<std::size_t>(numPoints), 0.0f);
  for (int i = 0; i < numPoints; ++i) x[i] = mesh.getNodeCoord(i)[0];
  if (const float* values = mesh.getValuesSet(0)) std::copy(values, values + numPoints, y.begin());
  if (filter != nullptr) return filter->selectPoints(numPoints, x.data(), y.data());
  std::vector<int> all(static_cast<std::size_t>(numPoints));
  for (int i = 0; i < numPoints; ++i) all[i] = i;
  return all;
}

#define PO_MESH1D_FILTER_SOURCE(className)                   \
  PO_SUBCLASS_SOURCE(className, PoMesh1DFilter)

PO_MESH1D_FILTER_SOURCE(PoCoordinateListFilter)

PoCoordinateListFilter::PoCoordinateListFilter()
    : axisField(field(this, "axis", "0")), coordinatesField(field(this, "coordinates", "")) {
  CallJournal::record("PoCoordinateListFilter::PoCoordinateListFilter");
}

std::vector<int> PoCoordinateListFilter::selectPoints(int numPoints, const float* x, const float* y) const {
  const float* along = readInt(axisField, X) == Y ? y : x;
  const std::vector<float> wanted = readFloats(coordinatesField);
  std::vector<int> kept;
  for (int i = 0; i < numPoints; ++i)
    if (std::find(wanted.begin(), wanted.end(), along[i]) != wanted.end()) kept.push_back(i);
  return kept;
}

PO_MESH1D_FILTER_SOURCE(PoIndexListFilter)

PoIndexListFilter::PoIndexListFilter() : indexField(field(this, "index", "")) {
  CallJournal::record("PoIndexListFilter::PoIndexListFilter");
}

std::vector<int> PoIndexListFilter::selectPoints(int numPoints, const float*, const float*) const {
  std::vector<bool> listed(static_cast<std::size_t>(numPoints > 0 ? numPoints : 0), false);
  for (float v : readFloats(indexField)) {
    if (v >= 0.0f && v < static_cast<float>(numPoints) && v == std::floor(v)) listed[static_cast<std::size_t>(v)] = true;
  }
  std::vector<int> kept;
  for (int i = 0; i < numPoints; ++i)
    if (listed[i]) kept.push_back(i);
  return kept;
}

PO_MESH1D_FILTER_SOURCE(PoPeriodFilter)

PoPeriodFilter::PoPeriodFilter() : axisField(field(this, "axis", "0")), periodField(field(this, "period", "1")) {
  CallJournal::record("PoPeriodFilter::PoPeriodFilter");
}

std::vector<int> PoPeriodFilter::selectPoints(int numPoints, const float* x, const float* y) const {
  const float* along = readInt(axisField, X) == Y ? y : x;
  const float period = readFloat(periodField, 1.0f);
  const bool every = !(period > 0.0f) || !std::isfinite(period);
  std::vector<int> kept;
  for (int i = 0; i < numPoints; ++i) {
    if (every || kept.empty() || std::fabs(along[i] - along[kept.back()]) >= period) kept.push_back(i);
  }
  return kept;
}

PO_MESH1D_FILTER_SOURCE(PoPeriodIndexFilter)

PoPeriodIndexFilter::PoPeriodIndexFilter()
    : startField(field(this, "start", "0")), periodField(field(this, "period", "1")) {
  CallJournal::record("PoPeriodIndexFilter::PoPeriodIndexFilter");
}

std::vector<int> PoPeriodIndexFilter::selectPoints(int numPoints, const float*, const float*) const {
  const int start = std::max(0, readInt(startField, 0));
  const int period = std::max(1, readInt(periodField, 1));
  std::vector<int> kept;
  for (long i = start; i < numPoints; i += period) kept.push_back(static_cast<int>(i));
  return kept;
}

// --- PoIntervalCellFilter --------------------------------------------------------------------

SO_NODE_SOURCE(PoIntervalCellFilter, PoCellFilter, "PoIntervalCellFilter")

PoIntervalCellFilter::PoIntervalCellFilter()
    : minField(field(this, "min", "0")), maxField(field(this, "max", "1")), inField(field(this, "in", "TRUE")) {
  CallJournal::record("PoIntervalCellFilter::PoIntervalCellFilter");
}

PoIntervalCellFilter::~PoIntervalCellFilter() = default;

SbBool PoIntervalCellFilter::acceptCell(int, float value) const {
  const bool inside = value >= readFloat(minField, 0.0f) && value <= readFloat(maxField, 1.0f);
  return (readFlag(inField, true) ? inside : !inside) ? 1 : 0;
}

// --- profiles --------------------------------------------------------------------------------

SO_NODE_ABSTRACT_SOURCE(PoProfile, PoNode, "PoProfile")

PoProfile::PoProfile() = default;
PoProfile::~PoProfile() = default;

void PoProfile::doAction(SoAction* action) {
  CallJournal::record("PoProfile::doAction", static_cast<const void*>(action));
  makeCurrent(action);
  traverseChildren(action);
}

void PoProfile::makeCurrent(SoAction* action) const {
  if (SoState* state = stateOf(action)) PoProfileElement::setValue(state, self(this), this);
}

namespace {
std::vector<SbVec2f> ellipse(float rx, float ry, int numPoints) {
  const int n = std::max(3, numPoints);
  std::vector<SbVec2f> points;
  points.reserve(static_cast<std::size_t>(std::min(n, 1 << 16)));
  for (int i = 0; i < n && i < (1 << 16); ++i) {
    const double a = 2.0 * M_PI * i / n;
    points.emplace_back(static_cast<float>(rx * std::cos(a)), static_cast<float>(ry * std::sin(a)));
  }
  return points;
}
}  // namespace

PO_SUBCLASS_SOURCE(PoCircularProfile, PoProfile)

PoCircularProfile::PoCircularProfile()
    : radiusField(field(this, "radius", "1")), numPointsField(field(this, "numPoints", "16")) {
  CallJournal::record("PoCircularProfile::PoCircularProfile");
}

std::vector<SbVec2f> PoCircularProfile::getPoints() const {
  const float r = readFloat(radiusField, 1.0f);
  return ellipse(r, r, readInt(numPointsField, 16));
}

PO_SUBCLASS_SOURCE(PoEllipticProfile, PoProfile)

PoEllipticProfile::PoEllipticProfile()
    : radiusXField(field(this, "radiusX", "1")),
      radiusYField(field(this, "radiusY", "0.5")),
      numPointsField(field(this, "numPoints", "16")) {
  CallJournal::record("PoEllipticProfile::PoEllipticProfile");
}

std::vector<SbVec2f> PoEllipticProfile::getPoints() const {
  return ellipse(readFloat(radiusXField, 1.0f), readFloat(radiusYField, 0.5f), readInt(numPointsField, 16));
}

PO_SUBCLASS_SOURCE(PoSquareProfile, PoProfile)

PoSquareProfile::PoSquareProfile() : sizeField(field(this, "size", "1")) {
  CallJournal::record("PoSquareProfile::PoSquareProfile");
}

std::vector<SbVec2f> PoSquareProfile::getPoints() const {
  const float h = readFloat(sizeField, 1.0f) / 2.0f;
  return {SbVec2f(-h, -h), SbVec2f(h, -h), SbVec2f(h, h), SbVec2f(-h, h)};
}

PO_SUBCLASS_SOURCE(PoProfileCoordinate2, PoProfile)

PoProfileCoordinate2::PoProfileCoordinate2() : pointField(field(this, "point", "")) {
  CallJournal::record("PoProfileCoordinate2::PoProfileCoordinate2");
}

std::vector<SbVec2f> PoProfileCoordinate2::getPoints() const {
  const std::vector<float> numbers = readFloats(pointField);
  std::vector<SbVec2f> points;
  for (std::size_t i = 0; i + 1 < numbers.size(); i += 2) points.emplace_back(numbers[i], numbers[i + 1]);
  return points;
}
