// Actions: traversals of a scene graph. apply(node) makes a fresh traversal
// state, calls the node's operation of the action's kind, which traverses
// further as the node decides, and drops the state when the traversal is done
// (see SoState.h). Outside apply an action has no state.
#pragma once

#include <Corvel/StandIn.h>

#include <Corvel/SbColor.h>
#include <Corvel/SbVec.h>

#include <string>
#include <utility>
#include <vector>

#include <Corvel/SoSubClass.h>
#include <Corvel/SbBox.h>
#include <string>

class SoNode;
class SoState;

#define SO_ACTION_HEADER(className)      \
 public:                                 \
  static SoType getClassTypeId();        \
  static void initClass();               \
  SoType getTypeId() const override;     \
  void traverse(SoNode* node) override;  \
                                         \
 private:                                \
  static SoType s_classTypeId;           \
                                         \
 public:

// Defines the type and the traversal of an action class; CALL is the node
// operation the action calls.
#define SO_ACTION_SOURCE(className, parentName, typeName, call)                       \
  SoType className::s_classTypeId;                                                    \
  void className::initClass() {                                                       \
    tk::ClassRegistrationLock lock;                                                   \
    if (s_classTypeId.isBad())                                                        \
      s_classTypeId = SoType::createType(parentName::getClassTypeId(), typeName);     \
  }                                                                                   \
  SoType className::getClassTypeId() {                                                \
    initClass();                                                                      \
    return s_classTypeId;                                                             \
  }                                                                                   \
  SoType className::getTypeId() const { return getClassTypeId(); }                    \
  void className::traverse(SoNode* node) {                                            \
    countNode();                                                                      \
    node->call(this);                                                                 \
  }

class SoAction {
 public:
  static SoType getClassTypeId();
  static void initClass();
  virtual SoType getTypeId() const;

  virtual ~SoAction();
  TAVREL_STANDIN_ONLY void apply(SoNode* node);
  // Calls the node's operation for this kind of action.
  TAVREL_STANDIN_ONLY virtual void traverse(SoNode* node);
  // The state of the traversal in progress; null outside apply.
  TAVREL_STANDIN_ONLY SoState* getState() const { return state; }

  // Element types of the states made from now on, for every action: the
  // state makes the elements of the stack index with the type enabled for
  // it, by default the type that created the index. A type is enabled only
  // on an index whose creating type it derives from (false otherwise).
  TAVREL_STANDIN_ONLY static bool enableElement(SoType type, int stackIndex);
  TAVREL_STANDIN_ONLY static SoType getEnabledElement(int stackIndex);
  // Number of nodes this action has traversed since it was made.
  TAVREL_STANDIN_ONLY int getNodesTraversed() const { return nodesTraversed; }

 protected:
  SoAction() = default;
  TAVREL_STANDIN_ONLY void countNode() { ++nodesTraversed; }
  // Called when an apply starts that is not inside another of this action.
  TAVREL_STANDIN_ONLY virtual void beginApply() {}
  // Called when the outermost apply has traversed its node.
  TAVREL_STANDIN_ONLY virtual void endApply() {}

 private:
  SoState* state = nullptr;
  int nodesTraversed = 0;
};

// Renders the scene. This toolkit draws nothing on screen; it keeps what the
// graph nodes it reaches draw (lines, filled polygons and texts, in scene
// coordinates, in the order drawn; each apply starts a new one) as a picture,
// which it writes as an SVG document (toSvg):
//  - the x and y of the points (z is dropped), y pointing up;
//  - the text size, one line of text, is 9/800 of the sum of the width and
//    height of the box around the points (about 15 pixels in a picture a
//    third wider than high); a text of n characters counts as 0.6 n lines
//    wide and one line high;
//  - the viewBox is the box around the points and the texts, with a margin
//    of a twentieth of its longer side; the document is 800 x 600 pixels;
//  - polygons are filled with their colour and outlined in white, lines
//    stroked in their colour, texts written in theirs (black is left to the
//    viewer's default), each placed about its point as its anchor and
//    baseline say (dy of 0.35em for CENTRAL, 0.8em for HANGING). Lines are
//    1/800 of the sum of the width and height of the points' box wide.
class SoGLRenderAction : public SoAction {
  SO_ACTION_HEADER(SoGLRenderAction)
 public:
  struct Primitive {
    enum Kind { LINE, POLYGON, TEXT } kind;
    std::vector<SbVec3f> points;
    SbColor color;
    TAVREL_STANDIN_ONLY std::string text;
    // Texts: where the text sits about its point: beginning there
    // (START), centred on it (MIDDLE) or ending there (END); and its
    // baseline there (BASELINE), its middle (CENTRAL) or its top (HANGING).
    enum Anchor { MIDDLE, START, END } anchor = MIDDLE;
    enum Baseline { BASELINE, CENTRAL, HANGING } baseline = BASELINE;
  };
  // Adds a primitive to the picture. The previous apply's primitives are
  // kept until this apply ends and each new one is assigned into the one at
  // its place, reusing its memory: a large drawing copied into fresh memory
  // at every apply would pay the kernel's page faults for it each time (above
  // the C library's mapping threshold), a cost per point that grew with the
  // picture.
  TAVREL_STANDIN_ONLY void addPrimitive(const Primitive& primitive) {
    if (drawn < primitives.size()) {
      primitives[drawn] = primitive;
    } else {
      primitives.push_back(primitive);
    }
    ++drawn;
  }
  TAVREL_STANDIN_ONLY void addPrimitive(Primitive&& primitive) {
    if (drawn < primitives.size()) {
      primitives[drawn] = std::move(primitive);
    } else {
      primitives.push_back(std::move(primitive));
    }
    ++drawn;
  }
  TAVREL_STANDIN_ONLY const std::vector<Primitive>& getPrimitives() const { return primitives; }
  TAVREL_STANDIN_ONLY std::string toSvg() const;

 protected:
  TAVREL_STANDIN_ONLY void beginApply() override { drawn = 0; }
  // Drops what the previous apply drew beyond this one's primitives.
  TAVREL_STANDIN_ONLY void endApply() override {
    primitives.erase(primitives.begin() + static_cast<std::ptrdiff_t>(drawn), primitives.end());
  }

 private:
  std::vector<Primitive> primitives;
  std::size_t drawn = 0;  // the primitives of the current apply, at the front
};
class SoCallbackAction : public SoAction { SO_ACTION_HEADER(SoCallbackAction) };
class SoGetBoundingBoxAction : public SoAction {
  SO_ACTION_HEADER(SoGetBoundingBoxAction)
 public:
  SbBox3f& getBoundingBox() { return box; }

 private:
  SbBox3f box;
};
class SoGetMatrixAction : public SoAction { SO_ACTION_HEADER(SoGetMatrixAction) };
class SoHandleEventAction : public SoAction { SO_ACTION_HEADER(SoHandleEventAction) };
class SoPickAction : public SoAction { SO_ACTION_HEADER(SoPickAction) };
class SoRayPickAction : public SoPickAction { SO_ACTION_HEADER(SoRayPickAction) };
class SoSearchAction : public SoAction { SO_ACTION_HEADER(SoSearchAction) };
class SoWriteAction : public SoAction {
  SO_ACTION_HEADER(SoWriteAction)
 public:
  // What the traversal wrote.
  TAVREL_STANDIN_ONLY std::string& getOutput() { return output; }

 private:
  std::string output;
};
class SoGetPrimitiveCountAction : public SoAction { SO_ACTION_HEADER(SoGetPrimitiveCountAction) };
class SoDistributeAction : public SoAction { SO_ACTION_HEADER(SoDistributeAction) };
