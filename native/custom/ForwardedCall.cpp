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

jstring ForwardedCall::string(const SbName& name) {
  if (peer == nullptr) return nullptr;
  jstring converted = StringHelper::fromNativeString(env, name);
  if (converted == nullptr && name.getString() != nullptr) conversionFailed = true;
  return static_cast<jstring>(keep(converted));
}

void ForwardedCall::report(jthrowable thrown) {
  std::string message = std::string("Exception raised during execution of ") + className + '.' + operation + '.';
  ExceptionHelper::throwIllegalArgException(env, message.c_str(), thrown);
  env->DeleteLocalRef(thrown);
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
