// com.kestrum.tavrel.elements.PoMesh1DFilterElement: the toolkit element's static operations and the
// Java-extensible element behind the Java subclasses (CustomPoMesh1DFilterElement).

#include <jni.h>

#include <Corvel/SoNode.h>
#include <Corvel/SoState.h>
#include <Tavrel/PoMesh1DFilterElement.h>

#include "common/ClassFamilies.h"
#include "common/Elements.h"
#include "common/Handles.h"
#include "custom/CustomElement.h"

extern "C" {

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_elements_PoMesh1DFilterElement_ctorImpl(JNIEnv*, jclass) {
  return tavrel::elements::construct<CustomPoMesh1DFilterElement, PoMesh1DFilterElement>();
}

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_elements_PoMesh1DFilterElement_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeName<PoMesh1DFilterElement>(env);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_elements_PoMesh1DFilterElement_getClassStackIndexImpl(JNIEnv*, jclass) {
  return PoMesh1DFilterElement::getClassStackIndex();
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_elements_PoMesh1DFilterElement_nativeDerivedClassInit(JNIEnv*, jclass) {
  CustomPoMesh1DFilterElement::initClass();
}

JNIEXPORT jintArray JNICALL Java_com_kestrum_tavrel_elements_PoMesh1DFilterElement_initCustomClass(JNIEnv* env, jclass, jlong element, jobject peer, jboolean create, jstring typeName, jint stackIndex, jshort key) {
  return tavrel::elements::initCustomClass<CustomPoMesh1DFilterElement, PoMesh1DFilterElement>(env, element, peer, create, typeName, stackIndex, key);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_elements_PoMesh1DFilterElement_initImpl(JNIEnv* env, jclass, jlong element, jlong state) {
  tavrel::elements::initProtected<PoMesh1DFilterElement>(env, element, state);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_elements_PoMesh1DFilterElement_setImpl(JNIEnv*, jclass, jlong state, jlong node, jlong value) {
  PoMesh1DFilterElement::set(tavrel::fromHandle<SoState>(state), tavrel::fromHandle<SoNode>(node), tavrel::fromHandle<PoMesh1DFilter>(value));
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_elements_PoMesh1DFilterElement_getImpl(JNIEnv*, jclass, jlong state) {
  return tavrel::toHandle(PoMesh1DFilterElement::get(tavrel::fromHandle<SoState>(state)));
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_elements_PoMesh1DFilterElement_getDefaultImpl(JNIEnv*, jclass) {
  return 0;
}

}  // extern "C"
