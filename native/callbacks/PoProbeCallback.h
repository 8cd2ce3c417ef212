// Bridge from the probe point's callbacks to a Java callback object
// (com.kestrum.tavrel.misc.callbacks.PoProbeCB).
//
// The toolkit calls RealCallback with the bridge's address as user data; the
// bridge calls "invokeNativ" (JJ)V of its Java callback object with the
// probe's and the cell's addresses (0 for no cell). The Java callback object
// is recorded in the ICustomClass part by the binding core, as a reference
// that gives null once the object has been collected.
//
// A bridge is never freed by this library: the toolkit keeps only its address,
// and it must stay allocated for as long as any toolkit object holds it.
#pragma once

#include <CorvelJNI/ICustomClass.h>

class PbCell;
class PoMeshProbePoint;

class PoProbeCallback : public ICustomClass {
 public:
  static void RealCallback(void* userData, PoMeshProbePoint* probe, const PbCell* cell);
  void invoke(PoMeshProbePoint* probe, const PbCell* cell);
};
