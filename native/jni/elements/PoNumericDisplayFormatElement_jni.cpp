// com.kestrum.tavrel.elements.PoNumericDisplayFormatElement: the toolkit element's static operations and the
// Java-extensible element behind the Java subclasses (CustomPoNumericDisplayFormatElement).

#include <jni.h>

#include <Corvel/SoNode.h>
#include <Corvel/SoState.h>
#include <Tavrel/PoNumericDisplayFormatElement.h>

#include "common/ClassFamilies.h"
#include "common/Elements.h"
#include "common/Handles.h"
#include "custom/CustomElement.h"

extern "C" {

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_elements_PoNumericDisplayFormatElement_ctorImpl(JNIEnv*, jclass) {
  return tavrel::elements::construct<CustomPoNumericDisplayFormatElement, PoNumericDisplayFormatElement>();
}

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_elements_PoNumericDisplayFormatElement_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeName<PoNumericDisplayFormatElement>(env);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_elements_PoNumericDisplayFormatElement_getClassStackIndexImpl(JNIEnv*, jclass) {
  return PoNumericDisplayFormatElement::getClassStackIndex();
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_elements_PoNumericDisplayFormatElement_nativeDerivedClassInit(JNIEnv*, jclass) {
  CustomPoNumericDisplayFormatElement::initClass();
}

JNIEXPORT jintArray JNICALL Java_com_kestrum_tavrel_elements_PoNumericDisplayFormatElement_initCustomClass(JNIEnv* env, jclass, jlong element, jobject peer, jboolean create, jstring typeName, jint stackIndex, jshort key) {
  return tavrel::elements::initCustomClass<CustomPoNumericDisplayFormatElement, PoNumericDisplayFormatElement>(env, element, peer, create, typeName, stackIndex, key);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_elements_PoNumericDisplayFormatElement_initImpl(JNIEnv* env, jclass, jlong element, jlong state) {
  tavrel::elements::initProtected<PoNumericDisplayFormatElement>(env, element, state);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_elements_PoNumericDisplayFormatElement_setImpl(JNIEnv*, jclass, jlong state, jlong node, jlong value) {
  PoNumericDisplayFormatElement::set(tavrel::fromHandle<SoState>(state), tavrel::fromHandle<SoNode>(node), tavrel::fromHandle<PbNumericDisplayFormat>(value));
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_elements_PoNumericDisplayFormatElement_getImpl(JNIEnv*, jclass, jlong state) {
  return tavrel::toHandle(PoNumericDisplayFormatElement::get(tavrel::fromHandle<SoState>(state)));
}

}  // extern "C"
