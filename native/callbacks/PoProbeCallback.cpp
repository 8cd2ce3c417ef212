#include "callbacks/PoProbeCallback.h"

#include <Corvel/SoModuleCheck.h>

#include "callbacks/InvokeNativ.h"
#include "common/Handles.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

void PoProbeCallback::RealCallback(void* userData, PoMeshProbePoint* probe, const PbCell* cell) {
  tavrel::printDebug("DEBUG: NTV MTHD->PoProbeCallback::RealCallback\n");
  static_cast<PoProbeCallback*>(userData)->invoke(probe, cell);
}

void PoProbeCallback::invoke(PoMeshProbePoint* probe, const PbCell* cell) {
  tavrel::printDebug("DEBUG: NTV MTHD->PoProbeCallback::invoke\n");
  tavrel::invokeNativ(*this, "(JJ)V", tavrel::toHandle(probe), tavrel::toHandle(cell));
}
