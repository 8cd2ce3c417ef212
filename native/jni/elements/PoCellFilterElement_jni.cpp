// com.kestrum.tavrel.elements.PoCellFilterElement: the toolkit element's static operations and the
// Java-extensible element behind the Java subclasses (CustomPoCellFilterElement).

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Corvel/SoNode.h>
#include <Corvel/SoState.h>
#include <Tavrel/PoCellFilterElement.h>

#include "common/ClassFamilies.h"
#include "common/Elements.h"
#include "common/Handles.h"
#include "custom/CustomElement.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_elements_PoCellFilterElement_ctorImpl(JNIEnv*, jclass) {
  return tavrel::elements::construct<CustomPoCellFilterElement, PoCellFilterElement>();
}

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_elements_PoCellFilterElement_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeName<PoCellFilterElement>(env);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_elements_PoCellFilterElement_getClassStackIndexImpl(JNIEnv*, jclass) {
  return PoCellFilterElement::getClassStackIndex();
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_elements_PoCellFilterElement_nativeDerivedClassInit(JNIEnv*, jclass) {
  CustomPoCellFilterElement::initClass();
}

JNIEXPORT jintArray JNICALL Java_com_kestrum_tavrel_elements_PoCellFilterElement_initCustomClass(JNIEnv* env, jclass, jlong element, jobject peer, jboolean create, jstring typeName, jint stackIndex, jshort key) {
  return tavrel::elements::initCustomClass<CustomPoCellFilterElement, PoCellFilterElement>(env, element, peer, create, typeName, stackIndex, key);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_elements_PoCellFilterElement_initImpl(JNIEnv* env, jclass, jlong element, jlong state) {
  tavrel::elements::initProtected<PoCellFilterElement>(env, element, state);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_elements_PoCellFilterElement_setImpl(JNIEnv*, jclass, jlong state, jlong node) {
  PoCellFilterElement::set(tavrel::fromHandle<SoState>(state), tavrel::fromHandle<SoNode>(node));
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_elements_PoCellFilterElement_getImpl(JNIEnv*, jclass, jlong state) {
  return tavrel::toHandle(PoCellFilterElement::get(tavrel::fromHandle<SoState>(state)));
}

}  // extern "C"
