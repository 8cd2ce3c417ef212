// The native object behind every Java com.kestrum.tavrel.nodes.PoNode and its
// Java subclasses: a toolkit PoNode that forwards its virtual operations to
// the Java peer, gives each Java subclass a toolkit type of its own, and lets
// the binding core reach the toolkit's behaviour through the access
// interfaces. The shared design is described in CustomNodeClass.h.
#pragma once

#include <CorvelJNI/ICustomClass.h>
#include <CorvelJNI/ProtectedMethodAccess.h>
#include <Tavrel/PoNode.h>

#include "custom/CustomNodeClass.h"
#include "custom/PoProtectedMethodAccess.h"

class CustomPoNode : public PoNode,
                     public ICustomClass,
                     public IPoNodeProtectedMethodAccess,
                     public ISoNodeProtectedMethodAccess,
                     public ISoFieldContainerProtectedMethodAccess,
                     public ISoBaseProtectedMethodAccess {
 public:
  // The 35 Java methods the node calls (rows 0 to 34).
  struct InitJNIFields {
    InitJNIFields() {}
    TAVREL_NODE_METHOD_ROWS(TAVREL_DECLARE_METHOD_ID)
    jmethodID getRenderEngineMode;
    // Looks the methods up on com.kestrum.tavrel.nodes.PoNode, in row order.
    void init();
  };

  using ToolkitBase = PoNode;
  static constexpr const char* kClassName = "CustomPoNode";
  static constexpr const char* kClassTypeName = "Node";

  CustomPoNode();
  ~CustomPoNode() override;

  TAVREL_CUSTOM_NODE_MEMBERS

  static SbThreadMutex* classMutex;
  static SoType* classTypeId;
  static const SoFieldData** parentFieldData;
  static int isBuiltIn;
  static InitJNIFields s_init;

 private:
  SoFieldData* fieldData;
  SoType typeId;
  SbRenderEngineMode renderEngineMode;
  std::string* fileFormatName;
  SoChildList* children;
};
