// com.kestrum.tavrel.testkit.Fields: what the toolkit keeps in a field (its
// flags and container) and in a container's field data, and connections
// between fields, which only the toolkit makes.

#include <jni.h>

#include <Corvel/SoField.h>
#include <Corvel/SoFieldContainer.h>
#include <Corvel/SoNode.h>

#include <string>
#include <vector>

#include "common/Handles.h"
#include "TestkitSupport.h"

namespace {
SoField* field(jlong handle) { return tavrel::fromHandle<SoField>(handle); }
}  // namespace

extern "C" {

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_testkit_Fields_connect(JNIEnv*, jclass, jlong to, jlong from) {
  field(to)->connectFrom(field(from));
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_testkit_Fields_fieldType(JNIEnv*, jclass, jlong handle) {
  return field(handle)->getFieldType();
}

JNIEXPORT jboolean JNICALL Java_com_kestrum_tavrel_testkit_Fields_needsEvaluation(JNIEnv*, jclass, jlong handle) {
  return field(handle)->getNeedsEvaluation() ? JNI_TRUE : JNI_FALSE;
}

JNIEXPORT jboolean JNICALL Java_com_kestrum_tavrel_testkit_Fields_isDefault(JNIEnv*, jclass, jlong handle) {
  return field(handle)->isDefault() ? JNI_TRUE : JNI_FALSE;
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_testkit_Fields_container(JNIEnv*, jclass, jlong handle) {
  // As a node: the address the Java side knows.
  return tavrel::toHandle(static_cast<SoNode*>(field(handle)->getContainer()));
}

// "name=address" for each entry of the node's field data (address 0 for a name only).
JNIEXPORT jobjectArray JNICALL Java_com_kestrum_tavrel_testkit_Fields_fieldDataNative(JNIEnv* env, jclass, jlong node) {
  std::vector<std::string> entries;
  if (const SoFieldData* data = tavrel::fromHandle<SoNode>(node)->getFieldData())
    for (int i = 0; i < data->getNumFields(); ++i)
      entries.push_back(std::string(data->getFieldName(i).getString()) + "=" +
                        std::to_string(tavrel::toHandle(data->getField(i))));
  return testkit::toJavaStrings(env, entries);
}

}  // extern "C"
