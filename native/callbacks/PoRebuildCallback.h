// Bridge from the pre- and post-rebuild callbacks of the graph nodes to a Java
// callback object (com.kestrum.tavrel.misc.callbacks.PoRebuildCB).
//
// The toolkit calls RealCallback with the bridge's address as user data; the
// bridge calls "invokeNativ" (J)V of its Java callback object with the address
// of the node being rebuilt. As for PoProbeCallback, the binding core records
// the Java callback object, and no native method frees a bridge.
#pragma once

#include <CorvelJNI/ICustomClass.h>

class PoBase;

class PoRebuildCallback : public ICustomClass {
 public:
  static void RealCallback(void* userData, PoBase* node);
  void invoke(PoBase* node);
};
