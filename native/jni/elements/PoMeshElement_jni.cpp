// com.kestrum.tavrel.elements.PoMeshElement: the toolkit element's static operations and the
// Java-extensible element behind the Java subclasses (CustomPoMeshElement).

#include <jni.h>

#include <Corvel/SoNode.h>
#include <Corvel/SoState.h>
#include <Tavrel/PbMesh1D.h>
#include <Tavrel/PbMesh2D.h>
#include <Tavrel/PbMesh3D.h>
#include <Tavrel/PoMeshElement.h>

#include "common/ClassFamilies.h"
#include "common/Elements.h"
#include "common/Handles.h"
#include "custom/CustomElement.h"

extern "C" {

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_elements_PoMeshElement_ctorImpl(JNIEnv*, jclass) {
  return tavrel::elements::construct<CustomPoMeshElement, PoMeshElement>();
}

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_elements_PoMeshElement_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeName<PoMeshElement>(env);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_elements_PoMeshElement_getClassStackIndexImpl(JNIEnv*, jclass) {
  return PoMeshElement::getClassStackIndex();
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_elements_PoMeshElement_nativeDerivedClassInit(JNIEnv*, jclass) {
  CustomPoMeshElement::initClass();
}

JNIEXPORT jintArray JNICALL Java_com_kestrum_tavrel_elements_PoMeshElement_initCustomClass(JNIEnv* env, jclass, jlong element, jobject peer, jboolean create, jstring typeName, jint stackIndex, jshort key) {
  return tavrel::elements::initCustomClass<CustomPoMeshElement, PoMeshElement>(env, element, peer, create, typeName, stackIndex, key);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_elements_PoMeshElement_initImpl(JNIEnv* env, jclass, jlong element, jlong state) {
  tavrel::elements::initProtected<PoMeshElement>(env, element, state);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_elements_PoMeshElement_setImpl(JNIEnv*, jclass, jlong state, jlong node, jlong mesh) {
  PoMeshElement::set(tavrel::fromHandle<SoState>(state), tavrel::fromHandle<SoNode>(node), tavrel::fromHandle<PbMesh1D>(mesh));
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_elements_PoMeshElement_setImpl1(JNIEnv*, jclass, jlong state, jlong node, jlong mesh) {
  PoMeshElement::set(tavrel::fromHandle<SoState>(state), tavrel::fromHandle<SoNode>(node), tavrel::fromHandle<PbMesh2D>(mesh));
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_elements_PoMeshElement_setImpl2(JNIEnv*, jclass, jlong state, jlong node, jlong mesh) {
  PoMeshElement::set(tavrel::fromHandle<SoState>(state), tavrel::fromHandle<SoNode>(node), tavrel::fromHandle<PbMesh3D>(mesh));
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_elements_PoMeshElement_getMeshImpl(JNIEnv*, jclass, jlong state) {
  return tavrel::toHandle(PoMeshElement::getMesh(tavrel::fromHandle<SoState>(state)));
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_elements_PoMeshElement_getMesh1DImpl(JNIEnv*, jclass, jlong state) {
  return tavrel::toHandle(PoMeshElement::getMesh1D(tavrel::fromHandle<SoState>(state)));
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_elements_PoMeshElement_getMesh2DImpl(JNIEnv*, jclass, jlong state) {
  return tavrel::toHandle(PoMeshElement::getMesh2D(tavrel::fromHandle<SoState>(state)));
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_elements_PoMeshElement_getMesh3DImpl(JNIEnv*, jclass, jlong state) {
  return tavrel::toHandle(PoMeshElement::getMesh3D(tavrel::fromHandle<SoState>(state)));
}

}  // extern "C"
