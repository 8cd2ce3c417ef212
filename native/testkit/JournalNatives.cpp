// com.kestrum.tavrel.testkit.Journal: the toolkit stand-in's call journal.

#include <Corvel/CallJournal.h>

#include <cstdint>
#include <CorvelJNI/StringHelper.h>

#include "TestkitSupport.h"

jobjectArray testkit::toJavaStrings(JNIEnv* env, const std::vector<std::string>& lines) {
  jclass stringClass = env->FindClass("java/lang/String");
  jobjectArray result = env->NewObjectArray(static_cast<jsize>(lines.size()), stringClass, nullptr);
  env->DeleteLocalRef(stringClass);
  for (std::size_t i = 0; i < lines.size(); ++i) {
    jstring s = StringHelper::fromNativeString(env, lines[i].c_str());
    env->SetObjectArrayElement(result, static_cast<jsize>(i), s);
    env->DeleteLocalRef(s);
  }
  return result;
}

extern "C" {

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_testkit_Journal_setEnabled(JNIEnv*, jclass, jboolean on) {
  CallJournal::setEnabled(on != JNI_FALSE);
}

// The function given every line from now on (its address, 0 for none).
JNIEXPORT void JNICALL Java_com_kestrum_tavrel_testkit_Journal_setListener(JNIEnv*, jclass, jlong address) {
  CallJournal::setListener(reinterpret_cast<CallJournal::Listener>(static_cast<std::intptr_t>(address)));
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_testkit_Journal_clear(JNIEnv*, jclass) { CallJournal::clear(); }

// A line of the test's own among the toolkit's, while the journal records.
JNIEXPORT void JNICALL Java_com_kestrum_tavrel_testkit_Journal_note(JNIEnv* env, jclass, jstring text) {
  if (!CallJournal::enabled()) return;
  StringHelper utf(env, text);
  CallJournal::append(utf.toUTFString());
}

JNIEXPORT jobjectArray JNICALL Java_com_kestrum_tavrel_testkit_Journal_lines(JNIEnv* env, jclass) {
  return testkit::toJavaStrings(env, CallJournal::lines());
}

}  // extern "C"
