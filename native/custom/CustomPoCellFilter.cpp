#include "custom/CustomPoCellFilter.h"

#include <Corvel/SoModuleCheck.h>

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

SbThreadMutex* CustomPoCellFilter::classMutex = nullptr;
SoType* CustomPoCellFilter::classTypeId = nullptr;
const SoFieldData** CustomPoCellFilter::parentFieldData = nullptr;
int CustomPoCellFilter::isBuiltIn = 0;
CustomPoCellFilter::InitJNIFields CustomPoCellFilter::s_init;

void CustomPoCellFilter::InitJNIFields::init() {
  JNIEnv* env = JNIEnvHelper::getEnv();
  jclass cls = env->FindClass("com/kestrum/tavrel/nodes/PoCellFilter");
  TAVREL_NODE_METHOD_ROWS(TAVREL_LOOKUP_METHOD_ID)
  TAVREL_LOOKUP_METHOD_ID(acceptCell, "(IF)Z")
  TAVREL_LOOKUP_METHOD_ID(getRenderEngineMode, TAVREL_RENDER_MODE_SIGNATURE)
}

// The value goes through the variadic call as a double.
SbBool CustomPoCellFilter::acceptCell(int index, float value) const {
  return tavrel::custom::forward(*this, "acceptCell")
      .callBoolean(s_init.acceptCell, static_cast<jint>(index), static_cast<jdouble>(value));
}

TAVREL_CUSTOM_NODE_DEFINITIONS(CustomPoCellFilter)
