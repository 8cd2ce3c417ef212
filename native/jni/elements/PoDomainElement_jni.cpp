// com.kestrum.tavrel.elements.PoDomainElement: the toolkit element's static operations and the
// Java-extensible element behind the Java subclasses (CustomPoDomainElement).

#include <jni.h>

#include <Corvel/SoNode.h>
#include <Corvel/SoState.h>
#include <Tavrel/PoDomainElement.h>

#include "common/ClassFamilies.h"
#include "common/Elements.h"
#include "common/Handles.h"
#include "custom/CustomElement.h"

extern "C" {

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_elements_PoDomainElement_ctorImpl(JNIEnv*, jclass) {
  return tavrel::elements::construct<CustomPoDomainElement, PoDomainElement>();
}

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_elements_PoDomainElement_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeName<PoDomainElement>(env);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_elements_PoDomainElement_getClassStackIndexImpl(JNIEnv*, jclass) {
  return PoDomainElement::getClassStackIndex();
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_elements_PoDomainElement_nativeDerivedClassInit(JNIEnv*, jclass) {
  CustomPoDomainElement::initClass();
}

JNIEXPORT jintArray JNICALL Java_com_kestrum_tavrel_elements_PoDomainElement_initCustomClass(JNIEnv* env, jclass, jlong element, jobject peer, jboolean create, jstring typeName, jint stackIndex, jshort key) {
  return tavrel::elements::initCustomClass<CustomPoDomainElement, PoDomainElement>(env, element, peer, create, typeName, stackIndex, key);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_elements_PoDomainElement_initImpl(JNIEnv* env, jclass, jlong element, jlong state) {
  tavrel::elements::initProtected<PoDomainElement>(env, element, state);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_elements_PoDomainElement_setImpl(JNIEnv*, jclass, jlong state, jlong node, jlong value) {
  PoDomainElement::set(tavrel::fromHandle<SoState>(state), tavrel::fromHandle<SoNode>(node), tavrel::fromHandle<PbDomain>(value));
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_elements_PoDomainElement_getImpl(JNIEnv*, jclass, jlong state) {
  return tavrel::toHandle(PoDomainElement::get(tavrel::fromHandle<SoState>(state)));
}

}  // extern "C"
