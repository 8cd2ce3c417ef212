// One call of a native virtual operation forwarded to the Java method of the
// same name on the object's Java peer.
//
// A ForwardedCall lives on the stack of the overriding operation. It gets the
// calling thread's environment and a local reference to the peer, converts the
// arguments, makes the one JNI call that fits the row's result, checks for a
// Java exception, and deletes the local references it made when it goes (a
// toolkit traversal may forward thousands of calls from one native frame, or
// run on a thread without a Java frame at all). The JNI calls of each kind of
// row, and why each goes beyond the plain sequence, are listed in
// docs/jni-sequences.md; the tests hold them exactly.
//
// A Java exception raised by the Java method is not cleared: it is reported as
// a java.lang.IllegalArgumentException with the message
// "Exception raised during execution of <class>.<operation>." and the Java
// exception as its cause (ExceptionHelper::throwIllegalArgException), and the
// operation returns to the toolkit as if the call had succeeded: void rows
// return, boolean and int rows return the Java call's value (0 when it threw),
// object rows return null.
//
// The toolkit's traversal goes on after such a call, and JNI allows no Java
// call while an exception is pending. So a forwarded call made while an
// exception is pending on the thread does not call Java at all: it returns the
// row's neutral value (nothing, false, 0, null, the empty name) and leaves the
// first exception pending, untouched. The same happens when the peer has been
// collected (its weak reference gives null) or was never bound. An argument
// conversion that fails (it gives null for a toolkit object or a name) may have
// raised a Java exception too: then that exception is reported like one of the
// Java method, which is not called.
#pragma once

#include <jni.h>

#include <Corvel/SbBase.h>
#include <Corvel/SbName.h>
#include <CorvelJNI/ICustomClass.h>
#include <CorvelJNI/JNIEnvHelper.h>
#include <CorvelJNI/ObjectHelper.h>

#include <cstdint>
#include <string>

#include "common/JavaPeer.h"

namespace tavrel {
namespace custom {

class ForwardedCall {
 public:
  // className and operation make the exception message; handleMethod is the
  // peer class's "getNativeResourceHandleInternal" method, used to read the
  // native handle of an object result.
  // Inline, with the rest of each row's plain path: a traversal forwards one
  // call per node, so the calls around the JNI functions are kept few.
  ForwardedCall(const ICustomClass& object, const char* className, const char* operation, jmethodID handleMethod)
      : env(JNIEnvHelper::getEnv()), className(className), operation(operation), handleMethod(handleMethod) {
    // Skipped while an exception is pending: NewLocalRef and every call into
    // Java are forbidden then, and the first exception must reach Java as it is.
    if (env == nullptr || env->ExceptionCheck()) return;
    jobject stored = javaPeerOf(object);
    if (stored == nullptr) return;
    // The reference to the peer is weak: a local reference keeps the peer
    // alive for the call, and is null once the peer has been collected.
    peer = env->NewLocalRef(stored);
  }

  ~ForwardedCall() {
    // DeleteLocalRef is allowed while an exception is pending.
    for (int i = 0; i < numLocals; ++i) env->DeleteLocalRef(locals[i]);
    if (peer != nullptr) env->DeleteLocalRef(peer);
  }
  ForwardedCall(const ForwardedCall&) = delete;
  ForwardedCall& operator=(const ForwardedCall&) = delete;

  // Argument conversions (null while the call is skipped).
  // The Java object for the toolkit object at address, as the dotted class.
  jobject object(const char* dottedClassName, const void* address) {
    if (peer == nullptr) return nullptr;
    jobject converted = ObjectHelper::getManagedObject(
        env, dottedClassName, static_cast<long>(reinterpret_cast<std::intptr_t>(address)));
    if (converted == nullptr && address != nullptr) conversionFailed = true;
    return keep(converted);
  }
  jstring string(const SbName& name);

  // The JNI call of each row kind, with the row's result handling.
  template <class... Args>
  void callVoid(jmethodID method, Args... args) {
    if (!argumentsReady()) return;
    env->CallVoidMethod(peer, method, args...);
    reportException();
  }

  template <class... Args>
  SbBool callBoolean(jmethodID method, Args... args) {
    if (!argumentsReady()) return 0;
    jboolean result = env->CallBooleanMethod(peer, method, args...);
    reportException();
    return result != JNI_FALSE ? 1 : 0;
  }

  template <class... Args>
  int callInt(jmethodID method, Args... args) {
    if (!argumentsReady()) return 0;
    jint result = env->CallIntMethod(peer, method, args...);
    reportException();
    return result;
  }

  // Object rows: the native handle of the Java result, null for a null result.
  template <class T, class... Args>
  T* callHandle(jmethodID method, Args... args) {
    if (!argumentsReady()) return nullptr;
    return static_cast<T*>(handleOf(keep(env->CallObjectMethod(peer, method, args...))));
  }

  // getFileFormatName: the Java string's UTF-8 form, kept in buffer (emptied
  // first); null for a null result.
  const char* callFileFormatName(jmethodID method, std::string& buffer);

  // getName: the Java string as a name; the empty name after an exception or
  // for a null result.
  SbName callName(jmethodID method);

  // initRenderEngineMode: the toolkit value of the Java enumeration that the
  // method returns, stored in value; false (value untouched) when there is
  // none.
  bool callEnum(jmethodID method, int& value);

 private:
  bool argumentsReady() {
    if (peer == nullptr) return false;
    // A conversion that gave null may have raised an exception in Java (no
    // wrapper class, for instance): it is reported like one of the Java
    // method itself, which is then not called. Without one, null is passed.
    return !(conversionFailed && reportException());
  }
  bool reportException() {
    jthrowable thrown = env->ExceptionOccurred();
    if (thrown == nullptr) return false;
    report(thrown);
    return true;
  }
  // Raises the wrapping exception for thrown (and deletes its reference).
  void report(jthrowable thrown);
  void* handleOf(jobject result);
  jobject keep(jobject local) {
    if (local != nullptr) locals[numLocals++] = local;
    return local;
  }
  // After a Java call that returned an object: -Xcheck:jni wants an exception
  // check before the next JNI call that may call Java. Nothing can be pending
  // (the method returned normally), so nothing else is done.
  void afterObjectResult() { static_cast<void>(env->ExceptionCheck()); }

  JNIEnv* env = nullptr;
  jobject peer = nullptr;
  const char* className;
  const char* operation;
  jmethodID handleMethod;
  jobject locals[4] = {nullptr, nullptr, nullptr, nullptr};  // at most one argument and one result per row
  int numLocals = 0;
  bool conversionFailed = false;
};

}  // namespace custom
}  // namespace tavrel
