// Actions: traversals of a scene graph. apply(node) makes a fresh traversal
// state, calls the node's operation of the action's kind, which traverses
// further as the node decides, and drops the state when the traversal is done
// (see SoState.h). Outside apply an action has no state.
#pragma once

#include <Corvel/StandIn.h>

#include <Corvel/SbColor.h>
#include <Corvel/SbVec.h>

#include <memory>
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
  // Adds a primitive to the picture.
  TAVREL_STANDIN_ONLY void addPrimitive(Primitive primitive) {
    if (parts.empty() || parts.back().shared != nullptr) parts.emplace_back();
    parts.back().own.push_back(std::move(primitive));
  }
  // Adds a drawing made elsewhere (a graph node's last build) to the picture
  // as it is. The picture shares it rather than copying its points, so a
  // render costs a step per node, not per point, however large the drawing;
  // the node's next build makes a new drawing and leaves this one to the
  // picture until the next apply.
  TAVREL_STANDIN_ONLY void addDrawing(std::shared_ptr<const std::vector<Primitive>> drawing) {
    if (drawing != nullptr && !drawing->empty()) parts.push_back({std::move(drawing), {}});
  }
  // Calls f(primitive) for every primitive of the picture, in the order drawn.
  template <class F>
  TAVREL_STANDIN_ONLY void forEachPrimitive(F f) const {
    for (const Part& part : parts)
      for (const Primitive& p : part.shared != nullptr ? *part.shared : part.own) f(p);
  }
  TAVREL_STANDIN_ONLY std::string toSvg() const;

 protected:
  TAVREL_STANDIN_ONLY void beginApply() override { parts.clear(); }

 private:
  // A run of the picture: a shared drawing, or the primitives added one by one.
  struct Part {
    std::shared_ptr<const std::vector<Primitive>> shared;
    std::vector<Primitive> own;
  };
  std::vector<Part> parts;
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
