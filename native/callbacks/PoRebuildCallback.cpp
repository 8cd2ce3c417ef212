#include "callbacks/PoRebuildCallback.h"

#include <Corvel/SoModuleCheck.h>

#include "callbacks/InvokeNativ.h"
#include "common/Handles.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

void PoRebuildCallback::RealCallback(void* userData, PoBase* node) {
  tavrel::printDebug("DEBUG: NTV MTHD->PoRebuildCallback::RealCallback\n");
  static_cast<PoRebuildCallback*>(userData)->invoke(node);
}

void PoRebuildCallback::invoke(PoBase* node) {
  tavrel::printDebug("DEBUG: NTV MTHD->PoRebuildCallback::invoke\n");
  tavrel::invokeNativ(*this, "(J)V", tavrel::toHandle(node));
}
