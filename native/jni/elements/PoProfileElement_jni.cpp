// com.kestrum.tavrel.elements.PoProfileElement: the toolkit element's static operations and the
// Java-extensible element behind the Java subclasses (CustomPoProfileElement).

#include <jni.h>

#include <Corvel/SoNode.h>
#include <Corvel/SoState.h>
#include <Tavrel/PoProfileElement.h>

#include "common/ClassFamilies.h"
#include "common/Elements.h"
#include "common/Handles.h"
#include "custom/CustomElement.h"

extern "C" {

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_elements_PoProfileElement_ctorImpl(JNIEnv*, jclass) {
  return tavrel::elements::construct<CustomPoProfileElement, PoProfileElement>();
}

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_elements_PoProfileElement_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeName<PoProfileElement>(env);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_elements_PoProfileElement_getClassStackIndexImpl(JNIEnv*, jclass) {
  return PoProfileElement::getClassStackIndex();
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_elements_PoProfileElement_nativeDerivedClassInit(JNIEnv*, jclass) {
  CustomPoProfileElement::initClass();
}

JNIEXPORT jintArray JNICALL Java_com_kestrum_tavrel_elements_PoProfileElement_initCustomClass(JNIEnv* env, jclass, jlong element, jobject peer, jboolean create, jstring typeName, jint stackIndex, jshort key) {
  return tavrel::elements::initCustomClass<CustomPoProfileElement, PoProfileElement>(env, element, peer, create, typeName, stackIndex, key);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_elements_PoProfileElement_initImpl(JNIEnv* env, jclass, jlong element, jlong state) {
  tavrel::elements::initProtected<PoProfileElement>(env, element, state);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_elements_PoProfileElement_setImpl(JNIEnv*, jclass, jlong state, jlong node, jlong value) {
  PoProfileElement::set(tavrel::fromHandle<SoState>(state), tavrel::fromHandle<SoNode>(node), tavrel::fromHandle<PoProfile>(value));
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_elements_PoProfileElement_getImpl(JNIEnv*, jclass, jlong state) {
  return tavrel::toHandle(PoProfileElement::get(tavrel::fromHandle<SoState>(state)));
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_elements_PoProfileElement_getDefaultImpl(JNIEnv*, jclass) {
  return 0;
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_elements_PoProfileElement_getBBoxImpl(JNIEnv* env, jclass, jlong state, jfloatArray box) {
  tavrel::elements::profileBBox(env, tavrel::fromHandle<SoState>(state), box);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_elements_PoProfileElement_getProfileImpl(JNIEnv* env, jclass, jlong state, jfloat value, jintArray count) {
  return tavrel::toHandle(tavrel::elements::profile(env, tavrel::fromHandle<SoState>(state), value, count));
}

JNIEXPORT jobject JNICALL Java_com_kestrum_tavrel_elements_PoProfileElement_getDirectProfileImpl(JNIEnv* env, jclass, jlong state, jfloat value, jintArray count) {
  return tavrel::elements::directProfile(env, tavrel::fromHandle<SoState>(state), value, count);
}

}  // extern "C"
