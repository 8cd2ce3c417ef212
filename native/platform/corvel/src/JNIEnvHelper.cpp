#include <CorvelJNI/JNIEnvHelper.h>

#include <dlfcn.h>
#include <pthread.h>

#include <atomic>

namespace {
std::atomic<JavaVM*> theVM{nullptr};
pthread_key_t detachKey;
pthread_once_t detachKeyOnce = PTHREAD_ONCE_INIT;

// Runs when a thread that getEnv() attached ends.
void detachAtExit(void* vm) { static_cast<JavaVM*>(vm)->DetachCurrentThread(); }

void makeDetachKey() { pthread_key_create(&detachKey, detachAtExit); }

JavaVM* findVM() {
  JavaVM* vm = theVM.load();
  if (vm != nullptr) return vm;
  // Loaded without JNI_OnLoad (as a dependency only): ask the running JVM.
  using GetCreated = jint (*)(JavaVM**, jsize, jsize*);
  auto getCreated = reinterpret_cast<GetCreated>(dlsym(RTLD_DEFAULT, "JNI_GetCreatedJavaVMs"));
  jsize n = 0;
  if (getCreated != nullptr && getCreated(&vm, 1, &n) == JNI_OK && n > 0) {
    theVM.store(vm);
    return vm;
  }
  return nullptr;
}
}  // namespace

namespace corvel {
void rememberJavaVM(JavaVM* vm) { theVM.store(vm); }
}  // namespace corvel

JavaVM* JNIEnvHelper::getJavaVM() { return findVM(); }

JNIEnv* JNIEnvHelper::getEnv() {
  JavaVM* vm = findVM();
  if (vm == nullptr) return nullptr;
  JNIEnv* env = nullptr;
  jint rc = vm->GetEnv(reinterpret_cast<void**>(&env), JNI_VERSION_1_8);
  if (rc == JNI_OK) return env;
  if (rc != JNI_EDETACHED) return nullptr;
  JavaVMAttachArgs args{JNI_VERSION_1_8, const_cast<char*>("Kestrum native thread"), nullptr};
  if (vm->AttachCurrentThreadAsDaemon(reinterpret_cast<void**>(&env), &args) != JNI_OK) return nullptr;
  pthread_once(&detachKeyOnce, makeDetachKey);
  pthread_setspecific(detachKey, vm);
  return env;
}
