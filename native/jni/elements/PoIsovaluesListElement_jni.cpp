// com.kestrum.tavrel.elements.PoIsovaluesListElement: the toolkit element's static operations and the
// Java-extensible element behind the Java subclasses (CustomPoIsovaluesListElement).

#include <jni.h>

#include <Corvel/SoNode.h>
#include <Corvel/SoState.h>
#include <Tavrel/PoIsovaluesListElement.h>

#include "common/ClassFamilies.h"
#include "common/Elements.h"
#include "common/Handles.h"
#include "custom/CustomElement.h"

extern "C" {

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_elements_PoIsovaluesListElement_ctorImpl(JNIEnv*, jclass) {
  return tavrel::elements::construct<CustomPoIsovaluesListElement, PoIsovaluesListElement>();
}

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_elements_PoIsovaluesListElement_getClassTypeId(JNIEnv* env, jclass) {
  return tavrel::classTypeName<PoIsovaluesListElement>(env);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_elements_PoIsovaluesListElement_getClassStackIndexImpl(JNIEnv*, jclass) {
  return PoIsovaluesListElement::getClassStackIndex();
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_elements_PoIsovaluesListElement_nativeDerivedClassInit(JNIEnv*, jclass) {
  CustomPoIsovaluesListElement::initClass();
}

JNIEXPORT jintArray JNICALL Java_com_kestrum_tavrel_elements_PoIsovaluesListElement_initCustomClass(JNIEnv* env, jclass, jlong element, jobject peer, jboolean create, jstring typeName, jint stackIndex, jshort key) {
  return tavrel::elements::initCustomClass<CustomPoIsovaluesListElement, PoIsovaluesListElement>(env, element, peer, create, typeName, stackIndex, key);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_elements_PoIsovaluesListElement_initImpl(JNIEnv* env, jclass, jlong element, jlong state) {
  tavrel::elements::initProtected<PoIsovaluesListElement>(env, element, state);
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_elements_PoIsovaluesListElement_setImpl(JNIEnv*, jclass, jlong state, jlong node, jlong value) {
  PoIsovaluesListElement::set(tavrel::fromHandle<SoState>(state), tavrel::fromHandle<SoNode>(node), tavrel::fromHandle<PbIsovaluesList>(value));
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_elements_PoIsovaluesListElement_getImpl(JNIEnv*, jclass, jlong state) {
  return tavrel::toHandle(PoIsovaluesListElement::get(tavrel::fromHandle<SoState>(state)));
}

}  // extern "C"
