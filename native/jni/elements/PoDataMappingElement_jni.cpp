// com.kestrum.tavrel.elements.PoDataMappingElement: the toolkit element's static operations and the
// Java-extensible element behind the Java subclasses (CustomPoDataMappingElement).

#include <jni.h>

#include <Corvel/SoNode.h>
#include <Corvel/SoState.h>
#include <Tavrel/PoDataMappingElement.h>

#include "common/ClassFamilies.h"
#include "common/Elements.h"
#include "common/Handles.h"
#include "custom/CustomElement.h"

extern "C" {

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_elements_PoDataMappingElement_ctorImpl(JNIEnv*, jclass) {
  return tavrel::elements::construct<CustomPoDataMappingElement, PoDataMappingElement>();
}

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_elements_PoDataMappingElement_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeName<PoDataMappingElement>(env);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_elements_PoDataMappingElement_getClassStackIndexImpl(JNIEnv*, jclass) {
  return PoDataMappingElement::getClassStackIndex();
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_elements_PoDataMappingElement_nativeDerivedClassInit(JNIEnv*, jclass) {
  CustomPoDataMappingElement::initClass();
}

JNIEXPORT jintArray JNICALL Java_com_kestrum_tavrel_elements_PoDataMappingElement_initCustomClass(JNIEnv* env, jclass, jlong element, jobject peer, jboolean create, jstring typeName, jint stackIndex, jshort key) {
  return tavrel::elements::initCustomClass<CustomPoDataMappingElement, PoDataMappingElement>(env, element, peer, create, typeName, stackIndex, key);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_elements_PoDataMappingElement_initImpl(JNIEnv* env, jclass, jlong element, jlong state) {
  tavrel::elements::initProtected<PoDataMappingElement>(env, element, state);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_elements_PoDataMappingElement_setImpl(JNIEnv*, jclass, jlong state, jlong node, jlong value) {
  PoDataMappingElement::set(tavrel::fromHandle<SoState>(state), tavrel::fromHandle<SoNode>(node), tavrel::fromHandle<PbDataMapping>(value));
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_elements_PoDataMappingElement_getImpl(JNIEnv*, jclass, jlong state) {
  return tavrel::toHandle(PoDataMappingElement::get(tavrel::fromHandle<SoState>(state)));
}

}  // extern "C"
