// Actions: traversals of a scene graph. apply(node) makes a fresh traversal
// state, calls the node's operation of the action's kind, which traverses
// further as the node decides, and drops the state when the traversal is done
// (see SoState.h). Outside apply an action has no state.
#pragma once

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
  void apply(SoNode* node);
  // Calls the node's operation for this kind of action.
  virtual void traverse(SoNode* node);
  // The state of the traversal in progress; null outside apply.
  SoState* getState() const { return state; }

  // Element types of the states made from now on, for every action: the
  // state makes the elements of the stack index with the type enabled for
  // it, by default the type that created the index. A type is enabled only
  // on an index whose creating type it derives from (false otherwise).
  static bool enableElement(SoType type, int stackIndex);
  static SoType getEnabledElement(int stackIndex);
  // Number of nodes this action has traversed since it was made.
  int getNodesTraversed() const { return nodesTraversed; }

 protected:
  SoAction() = default;
  void countNode() { ++nodesTraversed; }
  // Called when an apply starts that is not inside another of this action.
  virtual void beginApply() {}

 private:
  SoState* state = nullptr;
  int nodesTraversed = 0;
};

// Renders the scene. This toolkit draws nothing on screen; it keeps what the
// graph nodes it reaches draw (lines, filled polygons and texts, in scene
// coordinates, in the order drawn; each apply starts a new one) as a picture, which it
// writes as an SVG document: the x and y of the points, y pointing up, fitted
// with a margin into a viewBox; polygons filled with their colour, lines
// stroked black, texts at their point.
class SoGLRenderAction : public SoAction {
  SO_ACTION_HEADER(SoGLRenderAction)
 public:
  struct Primitive {
    enum Kind { LINE, POLYGON, TEXT } kind;
    std::vector<SbVec3f> points;
    SbColor color;
    std::string text;
  };
  void addPrimitive(Primitive primitive) { primitives.push_back(std::move(primitive)); }
  const std::vector<Primitive>& getPrimitives() const { return primitives; }
  std::string toSvg() const;

 protected:
  void beginApply() override { primitives.clear(); }

 private:
  std::vector<Primitive> primitives;
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
  std::string& getOutput() { return output; }

 private:
  std::string output;
};
class SoGetPrimitiveCountAction : public SoAction { SO_ACTION_HEADER(SoGetPrimitiveCountAction) };
class SoDistributeAction : public SoAction { SO_ACTION_HEADER(SoDistributeAction) };
