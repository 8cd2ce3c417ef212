// com.kestrum.tavrel.elements.PoMiscTextAttrElement: the toolkit element's static operations and the
// Java-extensible element behind the Java subclasses (CustomPoMiscTextAttrElement).

#include <jni.h>

#include <Corvel/SoNode.h>
#include <Corvel/SoState.h>
#include <Tavrel/PoMiscTextAttrElement.h>

#include "common/ClassFamilies.h"
#include "common/Elements.h"
#include "common/Handles.h"
#include "custom/CustomElement.h"

extern "C" {

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_elements_PoMiscTextAttrElement_ctorImpl(JNIEnv*, jclass) {
  return tavrel::elements::construct<CustomPoMiscTextAttrElement, PoMiscTextAttrElement>();
}

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_elements_PoMiscTextAttrElement_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeName<PoMiscTextAttrElement>(env);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_elements_PoMiscTextAttrElement_getClassStackIndexImpl(JNIEnv*, jclass) {
  return PoMiscTextAttrElement::getClassStackIndex();
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_elements_PoMiscTextAttrElement_nativeDerivedClassInit(JNIEnv*, jclass) {
  CustomPoMiscTextAttrElement::initClass();
}

JNIEXPORT jintArray JNICALL Java_com_kestrum_tavrel_elements_PoMiscTextAttrElement_initCustomClass(JNIEnv* env, jclass, jlong element, jobject peer, jboolean create, jstring typeName, jint stackIndex, jshort key) {
  return tavrel::elements::initCustomClass<CustomPoMiscTextAttrElement, PoMiscTextAttrElement>(env, element, peer, create, typeName, stackIndex, key);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_elements_PoMiscTextAttrElement_initImpl(JNIEnv* env, jclass, jlong element, jlong state) {
  tavrel::elements::initProtected<PoMiscTextAttrElement>(env, element, state);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_elements_PoMiscTextAttrElement_setImpl(JNIEnv*, jclass, jlong state, jlong node, jlong value) {
  PoMiscTextAttrElement::set(tavrel::fromHandle<SoState>(state), tavrel::fromHandle<SoNode>(node), tavrel::fromHandle<PbMiscTextAttr>(value));
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_elements_PoMiscTextAttrElement_getImpl(JNIEnv*, jclass, jlong state) {
  return tavrel::toHandle(PoMiscTextAttrElement::get(tavrel::fromHandle<SoState>(state)));
}

}  // extern "C"
