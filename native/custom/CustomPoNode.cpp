#include "custom/CustomPoNode.h"

#include <Corvel/SoModuleCheck.h>

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

SbThreadMutex* CustomPoNode::classMutex = nullptr;
SoType* CustomPoNode::classTypeId = nullptr;
const SoFieldData** CustomPoNode::parentFieldData = nullptr;
int CustomPoNode::isBuiltIn = 0;
CustomPoNode::InitJNIFields CustomPoNode::s_init;

void CustomPoNode::InitJNIFields::init() {
  JNIEnv* env = JNIEnvHelper::getEnv();
  jclass cls = env->FindClass("com/kestrum/tavrel/nodes/PoNode");
  TAVREL_NODE_METHOD_ROWS(TAVREL_LOOKUP_METHOD_ID)
  TAVREL_LOOKUP_METHOD_ID(getRenderEngineMode, TAVREL_RENDER_MODE_SIGNATURE)
}

TAVREL_CUSTOM_NODE_DEFINITIONS(CustomPoNode)
