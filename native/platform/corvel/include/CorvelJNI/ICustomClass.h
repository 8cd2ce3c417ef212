// The part of a native object that has a Java peer to call back.
//
// The first member is the JNI reference to the Java peer; native code reads
// it directly as the receiver of its calls into Java. The class has no
// virtual functions.
//
// initJavaObject(env, peer, weak):
//   weak == true   stores a weak global reference. The Java peer stays
//                  collectable; NewLocalRef on the reference gives null once
//                  it has been collected. The object releases it when it is
//                  destroyed (its owner never does).
//   weak == false  stores a global reference, which the owner releases with
//                  DeleteGlobalRef when it is destroyed.
// A second call replaces the reference; a weak one made by an earlier call is
// released first.
#pragma once

#include <Corvel/StandIn.h>

#include <jni.h>

class ICustomClass {
 public:
  TAVREL_STANDIN_ONLY jobject javaPeer;

  ICustomClass();
  ~ICustomClass();
  void initJavaObject(JNIEnv* env, jobject peer, bool weak);

 private:
  bool peerIsWeak;
};
