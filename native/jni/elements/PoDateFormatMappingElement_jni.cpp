// com.kestrum.tavrel.elements.PoDateFormatMappingElement: the toolkit element's static operations and the
// Java-extensible element behind the Java subclasses (CustomPoDateFormatMappingElement).

#include <jni.h>

#include <Corvel/SoNode.h>
#include <Corvel/SoState.h>
#include <Tavrel/PoDateFormatMappingElement.h>

#include "common/ClassFamilies.h"
#include "common/Elements.h"
#include "common/Handles.h"
#include "custom/CustomElement.h"

extern "C" {

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_elements_PoDateFormatMappingElement_ctorImpl(JNIEnv*, jclass) {
  return tavrel::elements::construct<CustomPoDateFormatMappingElement, PoDateFormatMappingElement>();
}

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_elements_PoDateFormatMappingElement_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeName<PoDateFormatMappingElement>(env);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_elements_PoDateFormatMappingElement_getClassStackIndexImpl(JNIEnv*, jclass) {
  return PoDateFormatMappingElement::getClassStackIndex();
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_elements_PoDateFormatMappingElement_nativeDerivedClassInit(JNIEnv*, jclass) {
  CustomPoDateFormatMappingElement::initClass();
}

JNIEXPORT jintArray JNICALL Java_com_kestrum_tavrel_elements_PoDateFormatMappingElement_initCustomClass(JNIEnv* env, jclass, jlong element, jobject peer, jboolean create, jstring typeName, jint stackIndex, jshort key) {
  return tavrel::elements::initCustomClass<CustomPoDateFormatMappingElement, PoDateFormatMappingElement>(env, element, peer, create, typeName, stackIndex, key);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_elements_PoDateFormatMappingElement_initImpl(JNIEnv* env, jclass, jlong element, jlong state) {
  tavrel::elements::initProtected<PoDateFormatMappingElement>(env, element, state);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_elements_PoDateFormatMappingElement_setImpl(JNIEnv*, jclass, jlong state, jlong node, jlong value) {
  PoDateFormatMappingElement::set(tavrel::fromHandle<SoState>(state), tavrel::fromHandle<SoNode>(node), tavrel::fromHandle<PbDateFormatMapping>(value));
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_elements_PoDateFormatMappingElement_getImpl(JNIEnv*, jclass, jlong state) {
  return tavrel::toHandle(PoDateFormatMappingElement::get(tavrel::fromHandle<SoState>(state)));
}

}  // extern "C"
