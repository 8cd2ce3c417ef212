// Base of the graph nodes: node kits that build their own parts (axes,
// curves, legends, charts, shapes) when they are rebuilt.
//
// Behaviour of this toolkit (what a caller may rely on):
//  - Changes. touchKit() and setDomain() change the node: they set its
//    modified flag; with the update method UPDATEMETHODIMMEDIATE (the
//    default) the node is rebuilt at once, with UPDATEMETHODONACTION when a
//    render, callback or bounding-box traversal next reaches it. Such a
//    traversal rebuilds the node whenever it is modified, whatever the
//    update method, before doing its own work; it also counts the node as
//    modified when one of its connected attribute objects (its domain) has
//    changed since the node was last built (see PbBase.h).
//  - rebuild() is virtual. PoBase's own does nothing, so a node of a class
//    that does not override it stays as it is (modified, not built). The
//    classes that build something override it and run one rebuild: the
//    pre-rebuild callbacks, in the order they were added; the build; the
//    built flag set and the modified flag cleared; the post-rebuild
//    callbacks, in order. The callbacks are those registered when the
//    rebuild starts. The build journals itself as "<Class>::build()". A
//    rebuild asked for while the node is being rebuilt (by a callback, say)
//    starts none: it marks the node modified, which the rebuild in progress
//    clears if the request came before its build (a pre-rebuild callback's),
//    and which stays for the next change or traversal otherwise.
//  - Callbacks: add{Pre,Post}RebuildCallback(function, userData) appends the
//    pair to the node's list of that kind (the same pair twice is called
//    twice); a null function removes every callback of that kind. A callback
//    is called as function(userData, node).
//  - The domain is kept by address (null: none) and given back as is; the
//    node neither copies nor frees it.
//  - The write format, the text type and the VRML2 mode are process-wide
//    values, kept and reported (FOLDNODEWRITEFORMAT, SOTEXT3 and off at
//    first); nothing this toolkit does depends on them.
//  - The update method, the modified flag and the built flag are read and
//    written directly (inline accessors). A new node is modified and not
//    built.
//  - A render traversal, once it has rebuilt the node if it must, keeps what
//    the node built in the action's picture (draw(); see SoGLRenderAction).
//  - The type of PoBase and of the graph classes below it is available as
//    the static data member classTypeId (valid once the extension is
//    initialised) as well as through getClassTypeId().
#pragma once

#include <Corvel/StandIn.h>

#include <Corvel/SoBaseKit.h>

#include <vector>

class PbBase;
class PbDomain;
class PoBase;

typedef void PoRebuildCB(void* userData, PoBase* node);

// Declarations of a graph node class: the kit's, and the classTypeId member.
#define PO_GRAPH_KIT_HEADER(className) \
  SO_KIT_HEADER(className)             \
                                       \
 public:                               \
  static const SoType& classTypeId;

// Definitions of a graph node class (concrete or abstract), with its catalog's
// own parts as a brace list.
#define PO_GRAPH_KIT_SOURCE(className, parentName, typeName, ...) \
  SO_KIT_SOURCE(className, parentName, typeName, __VA_ARGS__)     \
  const SoType& className::classTypeId = className::s_classTypeId;
#define PO_GRAPH_KIT_ABSTRACT_SOURCE(className, parentName, typeName, ...) \
  SO_KIT_ABSTRACT_SOURCE(className, parentName, typeName, __VA_ARGS__)     \
  const SoType& className::classTypeId = className::s_classTypeId;

class PoBase : public SoBaseKit {
  PO_GRAPH_KIT_HEADER(PoBase)

 public:
  enum UpdateMethodType : int { UPDATEMETHODIMMEDIATE = 0, UPDATEMETHODONACTION = 1 };
  enum NodeWriteFormat : int { FOLDNODEWRITEFORMAT = 0, UNFOLDNODEWRITEFORMAT = 1 };
  enum TextType : int { SOTEXT3 = 0, SOANNOTEXT3 = 1 };

  static void setNodeWriteFormat(NodeWriteFormat format);
  static NodeWriteFormat getNodeWriteFormat();
  static void setTextType(TextType type);
  static TextType getTextType();
  static void setVRML2Mode(int flag);
  static SbBool isVRML2Mode();

  TAVREL_ASSUMED void setUpdateMethod(UpdateMethodType method) { updateMethod = method; }
  TAVREL_ASSUMED UpdateMethodType getUpdateMethod() const { return updateMethod; }
  TAVREL_ASSUMED SbBool isModified() const { return modified; }
  TAVREL_ASSUMED SbBool isBuilt() const { return built; }

  void setDomain(PbDomain* domain);
  PbDomain* getDomain() const;

  void touchKit();
  virtual void rebuild();

  void addPreRebuildCallback(PoRebuildCB* function, void* userData);
  void addPostRebuildCallback(PoRebuildCB* function, void* userData);

  void GLRender(SoGLRenderAction* action) override;
  void callback(SoCallbackAction* action) override;
  void getBoundingBox(SoGetBoundingBoxAction* action) override;

  // --- Used inside this toolkit (not journaled) ---
  struct Callback {
    TAVREL_STANDIN_ONLY PoRebuildCB* function;
    void* userData;
  };
  TAVREL_STANDIN_ONLY const std::vector<Callback>& preRebuildCallbacks() const { return preCallbacks; }
  TAVREL_STANDIN_ONLY const std::vector<Callback>& postRebuildCallbacks() const { return postCallbacks; }
  // Number of builds so far.
  TAVREL_STANDIN_ONLY int getBuildCount() const { return buildCount; }
  // The domain set (null: none).
  TAVREL_STANDIN_ONLY PbDomain* domainInUse() const { return domain; }

 protected:
  PoBase();
  ~PoBase() override;

  // One rebuild, as described above, with build() as the build.
  TAVREL_STANDIN_ONLY void runRebuild();
  // What the class builds; PoBase builds nothing.
  TAVREL_STANDIN_ONLY virtual void build();
  // A change of the node: the modified flag, then a rebuild at once with
  // the immediate update method.
  TAVREL_STANDIN_ONLY void changed();
  // What a render traversal keeps of the node once it is rebuilt (see
  // SoGLRenderAction): lines, filled polygons and texts of its last build.
  // PoBase's own adds the drawing of a node that keeps one (PoDrawing.h),
  // nothing for the others.
  TAVREL_STANDIN_ONLY virtual void draw(SoGLRenderAction* action);

 private:
  // Rebuilds the node if a traversal must (see above).
  void rebuildForTraversal();
  bool attributesChanged() const;

  UpdateMethodType updateMethod = UPDATEMETHODIMMEDIATE;
  SbBool modified = 1;
  SbBool built = 0;
  bool rebuilding = false;
  int buildCount = 0;
  PbDomain* domain = nullptr;
  unsigned domainRevision = 0;
  std::vector<Callback> preCallbacks;
  std::vector<Callback> postCallbacks;
};
