// com.kestrum.tavrel.elements.PoLabelHintsElement: the toolkit element's static operations and the
// Java-extensible element behind the Java subclasses (CustomPoLabelHintsElement).

#include <jni.h>

#include <Corvel/SoModuleCheck.h>
#include <Corvel/SoNode.h>
#include <Corvel/SoState.h>
#include <Tavrel/PoLabelHintsElement.h>

#include "common/ClassFamilies.h"
#include "common/Elements.h"
#include "common/Handles.h"
#include "custom/CustomElement.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

extern "C" {

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_elements_PoLabelHintsElement_ctorImpl(JNIEnv*, jclass) {
  return tavrel::elements::construct<CustomPoLabelHintsElement, PoLabelHintsElement>();
}

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_elements_PoLabelHintsElement_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeName<PoLabelHintsElement>(env);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_elements_PoLabelHintsElement_getClassStackIndexImpl(JNIEnv*, jclass) {
  return PoLabelHintsElement::getClassStackIndex();
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_elements_PoLabelHintsElement_nativeDerivedClassInit(JNIEnv*, jclass) {
  CustomPoLabelHintsElement::initClass();
}

JNIEXPORT jintArray JNICALL Java_com_kestrum_tavrel_elements_PoLabelHintsElement_initCustomClass(JNIEnv* env, jclass, jlong element, jobject peer, jboolean create, jstring typeName, jint stackIndex, jshort key) {
  return tavrel::elements::initCustomClass<CustomPoLabelHintsElement, PoLabelHintsElement>(env, element, peer, create, typeName, stackIndex, key);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_elements_PoLabelHintsElement_initImpl(JNIEnv* env, jclass, jlong element, jlong state) {
  tavrel::elements::initProtected<PoLabelHintsElement>(env, element, state);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_elements_PoLabelHintsElement_setImpl(JNIEnv* env, jclass, jlong state, jlong node, jint labelPath, jint justification, jstring text, jboolean first, jboolean second) {
  tavrel::elements::setLabelHints(env, tavrel::fromHandle<SoState>(state), tavrel::fromHandle<SoNode>(node), labelPath, justification, text, first, second);
}

}  // extern "C"
