// com.kestrum.tavrel.elements.PoMesh1DHintsElement: the toolkit element's static operations and the
// Java-extensible element behind the Java subclasses (CustomPoMesh1DHintsElement).

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Corvel/SoNode.h>
#include <Corvel/SoState.h>
#include <Tavrel/PoMesh1DHintsElement.h>

#include "common/ClassFamilies.h"
#include "common/Elements.h"
#include "common/Handles.h"
#include "custom/CustomElement.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_elements_PoMesh1DHintsElement_ctorImpl(JNIEnv*, jclass) {
  return tavrel::elements::construct<CustomPoMesh1DHintsElement, PoMesh1DHintsElement>();
}

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_elements_PoMesh1DHintsElement_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeName<PoMesh1DHintsElement>(env);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_elements_PoMesh1DHintsElement_getClassStackIndexImpl(JNIEnv*, jclass) {
  return PoMesh1DHintsElement::getClassStackIndex();
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_elements_PoMesh1DHintsElement_nativeDerivedClassInit(JNIEnv*, jclass) {
  CustomPoMesh1DHintsElement::initClass();
}

JNIEXPORT jintArray JNICALL Java_com_kestrum_tavrel_elements_PoMesh1DHintsElement_initCustomClass(JNIEnv* env, jclass, jlong element, jobject peer, jboolean create, jstring typeName, jint stackIndex, jshort key) {
  return tavrel::elements::initCustomClass<CustomPoMesh1DHintsElement, PoMesh1DHintsElement>(env, element, peer, create, typeName, stackIndex, key);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_elements_PoMesh1DHintsElement_initImpl(JNIEnv* env, jclass, jlong element, jlong state) {
  tavrel::elements::initProtected<PoMesh1DHintsElement>(env, element, state);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_elements_PoMesh1DHintsElement_setImpl(JNIEnv*, jclass, jlong state, jlong node, jint interpretation) {
  PoMesh1DHintsElement::set(tavrel::fromHandle<SoState>(state), tavrel::fromHandle<SoNode>(node), tavrel::toEnum<PoMesh1DHints::GeomInterpretation>(interpretation));
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_elements_PoMesh1DHintsElement_getImpl(JNIEnv*, jclass, jlong state) {
  return static_cast<jint>(PoMesh1DHintsElement::get(tavrel::fromHandle<SoState>(state)));
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_elements_PoMesh1DHintsElement_getDefaultImpl(JNIEnv*, jclass) {
  return 0;
}

}  // extern "C"
