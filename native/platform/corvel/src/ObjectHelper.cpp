#include <CorvelJNI/JNIEnvHelper.h>
#include <CorvelJNI/ObjectHelper.h>

#include <dlfcn.h>
#include <link.h>

#include <atomic>
#include <cstdint>
#include <cstring>
#include <mutex>
#include <string>

#include "ManagedObjectsClass.h"

// The Java side keeps the table of Java objects by native address and of Java
// classes by toolkit type name (com.kestrum.corvel.misc.ManagedObjects).
//
// getManagedObject runs inside traversals, once per node and action, so it
// neither makes a string nor looks a class up by name on each call: the class
// of each name is resolved by the Java side once (initialising it, as a first
// use does) and kept as a global reference for the process's life. A
// registered peer of that class is then found without calling Java (the
// native side of the peer table, PeerTable.cpp, read without a lock);
// anything else takes one static Java call with the class and the address.
// Neither the class nor the peer lookup compares text or takes a lock on the
// way of a registered peer: the caller's literal is matched by its address.

namespace {
struct NamedClass {
  std::string name;
  jclass cls = nullptr;
};

// Filled under the lock, read without it: an entry is complete before the
// count that shows it is published. The callers name a few fixed classes;
// names beyond the capacity are resolved on every call.
constexpr int kNamedCapacity = 64;
NamedClass named[kNamedCapacity];
std::atomic<int> numNamed{0};
std::mutex namedMutex;

// The callers name their classes with string literals. A literal lies in a
// read-only segment of a loaded object; once that object is pinned (never
// unloaded), its address stands for its text for the rest of the process. So
// each such address is kept with its class and matched by address alone, with
// no comparison of text; other names are compared by text.
struct KnownAddress {
  std::atomic<const char*> key{nullptr};
  jclass cls = nullptr;  // written before key is published
};
constexpr int kAddressCapacity = 64;
KnownAddress addresses[kAddressCapacity];
std::atomic<int> numAddresses{0};

struct Segment {
  const void* address;
  bool readOnly = false;
  std::string objectName;
};

int findSegment(dl_phdr_info* info, size_t, void* data) {
  auto* wanted = static_cast<Segment*>(data);
  const auto at = reinterpret_cast<ElfW(Addr)>(wanted->address);
  for (int i = 0; i < info->dlpi_phnum; ++i) {
    const ElfW(Phdr)& ph = info->dlpi_phdr[i];
    if (ph.p_type != PT_LOAD) continue;
    const ElfW(Addr) start = info->dlpi_addr + ph.p_vaddr;
    if (at < start || at >= start + ph.p_memsz) continue;
    wanted->readOnly = (ph.p_flags & PF_W) == 0;
    wanted->objectName = info->dlpi_name != nullptr ? info->dlpi_name : "";
    return 1;
  }
  return 0;
}

}  // namespace

// Whether the text at the address can never change: it lies in a read-only
// segment of the program or of a shared object, which is then pinned.
bool corvel::isPinnedLiteral(const char* text) {
  Segment segment{text, false, std::string()};
  if (dl_iterate_phdr(findSegment, &segment) == 0 || !segment.readOnly) return false;
  if (segment.objectName.empty()) return true;  // the program itself
  void* handle = dlopen(segment.objectName.c_str(), RTLD_LAZY | RTLD_NOLOAD | RTLD_NODELETE);
  if (handle == nullptr) return false;
  dlclose(handle);  // RTLD_NODELETE stays
  return true;
}

namespace {

jclass findByAddress(const char* className) {
  const int n = numAddresses.load(std::memory_order_acquire);
  for (int i = 0; i < n; ++i)
    if (addresses[i].key.load(std::memory_order_relaxed) == className) return addresses[i].cls;
  return nullptr;
}

jclass findNamed(const char* className) {
  const int n = numNamed.load(std::memory_order_acquire);
  for (int i = 0; i < n; ++i)
    if (std::strcmp(named[i].name.c_str(), className) == 0) return named[i].cls;
  return nullptr;
}

// Under namedMutex: keeps the literal's address for the class.
void rememberAddress(const char* className, jclass cls) {
  const int n = numAddresses.load(std::memory_order_relaxed);
  if (n == kAddressCapacity || findByAddress(className) != nullptr || !corvel::isPinnedLiteral(className)) return;
  addresses[n].cls = cls;
  addresses[n].key.store(className, std::memory_order_relaxed);
  numAddresses.store(n + 1, std::memory_order_release);
}

// The class kept for the name, found by text; its address is remembered
// when it is a literal.
jclass findKept(const char* className) {
  jclass cls = findNamed(className);
  if (cls != nullptr) {
    std::lock_guard<std::mutex> lock(namedMutex);
    rememberAddress(className, cls);
  }
  return cls;
}

// Resolves the class through the Java side. Returns null with the exception
// pending when there is no such class; otherwise the kept global reference, or
// a local reference (isLocal) when the table is full.
jclass resolveNamed(JNIEnv* env, const corvel::ManagedObjectsClass& mo, const char* className, bool& isLocal) {
  jstring name = env->NewStringUTF(className);
  if (name == nullptr) return nullptr;
  jobject local = env->CallStaticObjectMethod(mo.cls, mo.classNamed, name);
  env->DeleteLocalRef(name);
  if (env->ExceptionCheck()) return nullptr;
  std::lock_guard<std::mutex> lock(namedMutex);
  if (jclass known = findNamed(className)) {
    env->DeleteLocalRef(local);
    rememberAddress(className, known);
    return known;
  }
  const int n = numNamed.load(std::memory_order_relaxed);
  if (n == kNamedCapacity) {
    isLocal = true;
    return static_cast<jclass>(local);
  }
  named[n].name = className;
  named[n].cls = static_cast<jclass>(env->NewGlobalRef(local));
  env->DeleteLocalRef(local);
  numNamed.store(n + 1, std::memory_order_release);
  rememberAddress(className, named[n].cls);
  return named[n].cls;
}
}  // namespace

jobject ObjectHelper::getManagedObject(JNIEnv* env, const char* className, long address) {
  if (address == 0) return nullptr;
  bool isLocal = false;
  jclass wanted = findByAddress(className);
  if (wanted == nullptr) wanted = findKept(className);
  if (wanted == nullptr) wanted = resolveNamed(env, corvel::managedObjectsClass(env), className, isLocal);
  if (wanted == nullptr) return nullptr;  // the exception stays pending for the caller
  if (jobject peer = corvel::registeredPeer(env, static_cast<jlong>(address))) {
    if (env->IsInstanceOf(peer, wanted)) {
      if (isLocal) env->DeleteLocalRef(wanted);
      return peer;
    }
    env->DeleteLocalRef(peer);
  }
  const corvel::ManagedObjectsClass& mo = corvel::managedObjectsClass(env);
  jobject result = env->CallStaticObjectMethod(mo.cls, mo.getManagedObject, wanted, static_cast<jlong>(address));
  if (env->ExceptionCheck()) result = nullptr;  // the exception stays pending for the caller
  if (isLocal) env->DeleteLocalRef(wanted);
  return result;
}

void* ObjectHelper::getManagedObject(const char* typeName) {
  JNIEnv* env = JNIEnvHelper::getEnv();
  // No Java call is allowed while an exception is pending: no instance then.
  if (env == nullptr || env->ExceptionCheck()) return nullptr;
  corvel::ManagedObjectsClass& mo = corvel::managedObjectsClass(env);
  jstring name = env->NewStringUTF(typeName);
  jlong address = env->CallStaticLongMethod(mo.cls, mo.createInstance, name);
  env->DeleteLocalRef(name);
  if (env->ExceptionCheck()) return nullptr;
  return reinterpret_cast<void*>(static_cast<intptr_t>(address));
}

int ObjectHelper::getEnumValue(JNIEnv* env, jobject enumObject) {
  jclass cls = env->GetObjectClass(enumObject);
  jmethodID getValue = env->GetMethodID(cls, "getValue", "()I");
  env->DeleteLocalRef(cls);
  if (getValue == nullptr) return 0;
  return env->CallIntMethod(enumObject, getValue);
}
