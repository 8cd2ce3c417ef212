// The native object behind every Java com.kestrum.tavrel.nodes.PoCellFilter
// and its Java subclasses: built like CustomPoNode (CustomNodeClass.h) on the
// toolkit's PoCellFilter, and forwarding acceptCell too.
#pragma once

#include <CorvelJNI/ICustomClass.h>
#include <CorvelJNI/ProtectedMethodAccess.h>
#include <Tavrel/PoCellFilter.h>

#include "custom/CustomNodeClass.h"
#include "custom/PoProtectedMethodAccess.h"

class CustomPoCellFilter : public PoCellFilter,
                           public ICustomClass,
                           public IPoCellFilterProtectedMethodAccess,
                           public IPoNodeProtectedMethodAccess,
                           public ISoNodeProtectedMethodAccess,
                           public ISoFieldContainerProtectedMethodAccess,
                           public ISoBaseProtectedMethodAccess {
 public:
  // The 36 Java methods the filter calls (rows 0 to 35).
  struct InitJNIFields {
    InitJNIFields() {}
    TAVREL_NODE_METHOD_ROWS(TAVREL_DECLARE_METHOD_ID)
    jmethodID acceptCell;
    jmethodID getRenderEngineMode;
    // Looks the methods up on com.kestrum.tavrel.nodes.PoCellFilter, in row order.
    void init();
  };

  using ToolkitBase = PoCellFilter;
  static constexpr const char* kClassName = "CustomPoCellFilter";
  static constexpr const char* kClassTypeName = "CellFilter";

  CustomPoCellFilter();
  ~CustomPoCellFilter() override;

  // acceptCell takes the slot PoCellFilter adds; the class's own operations
  // (declared with the shared members) follow it.
  SbBool acceptCell(int index, float value) const override;

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
