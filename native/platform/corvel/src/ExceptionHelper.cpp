#include <CorvelJNI/ExceptionHelper.h>
#include <CorvelJNI/JNIEnvHelper.h>

void ExceptionHelper::throwIllegalArgException(JNIEnv* env, const char* message, jthrowable cause) {
  env->ExceptionClear();
  jclass cls = env->FindClass("java/lang/IllegalArgumentException");
  if (cls == nullptr) return;
  if (cause == nullptr) {
    env->ThrowNew(cls, message);
    env->DeleteLocalRef(cls);
    return;
  }
  jmethodID ctor = env->GetMethodID(cls, "<init>", "(Ljava/lang/String;Ljava/lang/Throwable;)V");
  jstring text = env->NewStringUTF(message);
  jobject exception = env->NewObject(cls, ctor, text, cause);
  if (exception != nullptr) {
    env->Throw(static_cast<jthrowable>(exception));
    env->DeleteLocalRef(exception);
  }
  env->DeleteLocalRef(text);
  env->DeleteLocalRef(cls);
}

void ExceptionHelper::throwIllegalAccessException(const char* message) {
  JNIEnv* env = JNIEnvHelper::getEnv();
  if (env == nullptr) return;
  jclass cls = env->FindClass("java/lang/IllegalAccessException");
  if (cls == nullptr) return;
  env->ThrowNew(cls, message);
  env->DeleteLocalRef(cls);
}
