#include "custom/ForwardedCall.h"

#include <Corvel/SoModuleCheck.h>
#include <CorvelJNI/ExceptionHelper.h>
#include <CorvelJNI/ICustomClass.h>
#include <CorvelJNI/JNIEnvHelper.h>
#include <CorvelJNI/ObjectHelper.h>
#include <CorvelJNI/StringHelper.h>

#include <cstdint>

#include "common/JavaPeer.h"

static SoModuleCheck soVersionDeprecatedErrorCheck(0);

namespace tavrel {
namespace custom {

ForwardedCall::ForwardedCall(const ICustomClass& object, const char* className, const char* operation,
                             jmethodID handleMethod)
    : env(JNIEnvHelper::getEnv()), className(className), operation(operation), handleMethod(handleMethod) {
  // Skipped while an exception is pending: NewLocalRef and every call into
  // Java are forbidden then, and the first exception must reach Java as it is.
  if (env == nullptr || env->ExceptionCheck()) return;
  jobject stored = javaPeerOf(object);
  if (stored == nullptr) return;
  // The reference to the peer is weak: a local reference keeps the peer alive
  // for the call, and is null once the peer has been collected.
  peer = env->NewLocalRef(stored);
}

ForwardedCall::~ForwardedCall() {
  // DeleteLocalRef is allowed while an exception is pending.
  for (int i = 0; i < numLocals; ++i) env->DeleteLocalRef(locals[i]);
  if (peer != nullptr) env->DeleteLocalRef(peer);
}

jobject ForwardedCall::keep(jobject local) {
  if (local != nullptr) locals[numLocals++] = local;
  return local;
}

jobject ForwardedCall::object(const char* dottedClassName, const void* address) {
  if (peer == nullptr) return nullptr;
  jobject converted = ObjectHelper::getManagedObject(env, dottedClassName,
                                                     static_cast<long>(reinterpret_cast<std::intptr_t>(address)));
  if (converted == nullptr && address != nullptr) conversionFailed = true;
  return keep(converted);
}

jstring ForwardedCall::string(const SbName& name) {
  if (peer == nullptr) return nullptr;
  jstring converted = StringHelper::fromNativeString(env, name);
  if (converted == nullptr && name.getString() != nullptr) conversionFailed = true;
  return static_cast<jstring>(keep(converted));
}

bool ForwardedCall::argumentsReady() {
  if (peer == nullptr) return false;
  // A conversion that gave null may have raised an exception in Java (no
  // wrapper class, for instance): it is reported like one of the Java method
  // itself, which is then not called. Without one, null is passed.
  return !(conversionFailed && reportException());
}

bool ForwardedCall::reportException() {
  jthrowable thrown = env->ExceptionOccurred();
  if (thrown == nullptr) return false;
  std::string message = std::string("Exception raised during execution of ") + className + '.' + operation + '.';
  ExceptionHelper::throwIllegalArgException(env, message.c_str(), thrown);
  env->DeleteLocalRef(thrown);
  return true;
}

// No exception check follows "getNativeResourceHandleInternal" (a final getter
// of the binding core's Java class): should it ever throw, its result is 0, a
// null pointer for the toolkit, and its exception stays pending as it is.
void* ForwardedCall::handleOf(jobject result) {
  if (result == nullptr) {
    reportException();
    return nullptr;
  }
  afterObjectResult();
  jlong handle = env->CallLongMethod(result, handleMethod);
  return reinterpret_cast<void*>(static_cast<std::intptr_t>(handle));
}

const char* ForwardedCall::callFileFormatName(jmethodID method, std::string& buffer) {
  if (!argumentsReady()) return nullptr;
  jstring result = static_cast<jstring>(keep(env->CallObjectMethod(peer, method)));
  if (result == nullptr) {
    reportException();
    return nullptr;
  }
  afterObjectResult();
  StringHelper utf(env, result);
  const char* text = utf.toUTFString();
  buffer.clear();
  buffer.append(text ? text : "");
  return buffer.c_str();
}

SbName ForwardedCall::callName(jmethodID method) {
  if (!argumentsReady()) return SbName();
  jstring result = static_cast<jstring>(keep(env->CallObjectMethod(peer, method)));
  // A Java method that threw returned null: after reporting the exception,
  // and for a null result, the name is the empty name (what the binding
  // core's string helper gives for a null string).
  if (reportException() || result == nullptr) return SbName();
  StringHelper utf(env, result);
  return SbName(utf.toUTFString());
}

bool ForwardedCall::callEnum(jmethodID method, int& value) {
  if (!argumentsReady()) return false;
  jobject result = keep(env->CallObjectMethod(peer, method));
  if (result == nullptr) {
    reportException();
    return false;
  }
  afterObjectResult();
  value = ObjectHelper::getEnumValue(env, result);
  reportException();
  return true;
}

}  // namespace custom
}  // namespace tavrel
