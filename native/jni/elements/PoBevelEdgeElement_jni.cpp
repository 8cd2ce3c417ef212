// com.kestrum.tavrel.elements.PoBevelEdgeElement: the toolkit element's static operations and the
// Java-extensible element behind the Java subclasses (CustomPoBevelEdgeElement).

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Corvel/SoNode.h>
#include <Corvel/SoState.h>
#include <Tavrel/PoBevelEdgeElement.h>

#include "common/ClassFamilies.h"
#include "common/Elements.h"
#include "common/Handles.h"
#include "custom/CustomElement.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_elements_PoBevelEdgeElement_ctorImpl(JNIEnv*, jclass) {
  return tavrel::elements::construct<CustomPoBevelEdgeElement, PoBevelEdgeElement>();
}

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_elements_PoBevelEdgeElement_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeName<PoBevelEdgeElement>(env);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_elements_PoBevelEdgeElement_getClassStackIndexImpl(JNIEnv*, jclass) {
  return PoBevelEdgeElement::getClassStackIndex();
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_elements_PoBevelEdgeElement_nativeDerivedClassInit(JNIEnv*, jclass) {
  CustomPoBevelEdgeElement::initClass();
}

JNIEXPORT jintArray JNICALL Java_com_kestrum_tavrel_elements_PoBevelEdgeElement_initCustomClass(JNIEnv* env, jclass, jlong element, jobject peer, jboolean create, jstring typeName, jint stackIndex, jshort key) {
  return tavrel::elements::initCustomClass<CustomPoBevelEdgeElement, PoBevelEdgeElement>(env, element, peer, create, typeName, stackIndex, key);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_elements_PoBevelEdgeElement_initImpl(JNIEnv* env, jclass, jlong element, jlong state) {
  tavrel::elements::initProtected<PoBevelEdgeElement>(env, element, state);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_elements_PoBevelEdgeElement_setImpl(JNIEnv*, jclass, jlong state, jlong node, jboolean on, jfloat angle, jint radiusFlag, jfloat radius) {
  PoBevelEdgeElement::set(tavrel::fromHandle<SoState>(state), tavrel::fromHandle<SoNode>(node), tavrel::toFlag(on), angle, tavrel::toEnum<PoBevelEdge::RadiusFlag>(radiusFlag), radius);
}

}  // extern "C"
