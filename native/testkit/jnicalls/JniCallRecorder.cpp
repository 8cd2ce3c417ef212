// The JNI call recorder: a JVMTI agent of the test JVMs (libtavrel_jnicalls.so,
// loaded with -agentpath) and the natives of com.kestrum.tavrel.testkit.JniCalls.
//
// While a thread records, every JNI function that native code calls on that
// thread is written down in call order, with the arguments that matter (class
// signatures, field and method names and signatures, strings, indices,
// lengths, release modes), and the references it makes and frees are counted.
//
// The environment lookups of a recording thread (GetEnv of the JavaVM's
// invocation interface) are recorded too, as "GetEnv(<version>) -> <result>".
//
// Calls that the JDK's own native code makes on a recording thread (class
// loading, linking native methods, ...) are left out: those whose return
// address lies in a library of the JDK's lib folder, and those from code the
// JVM generated (outside every library) while the innermost Java frame is a
// method of a JDK class. The caller is known by its return address only for
// this: code that jumps to a JNI function as its last act (a tail call) leaves
// its caller's address, so the recorder makes no finer distinction.
//
// How the calls are seen. When the VM starts, the agent takes the JVM's JNI
// function table (GetJNIFunctionTable) and builds a second one, whose every
// function records the call when its thread is recording and then calls the
// JVM's own function with the same arguments. Under -Xcheck:jni the table that
// GetJNIFunctionTable gives is the checked one, the table that the threads'
// environments point to, and SetJNIFunctionTable replaces the functions of that
// same table, in place, for every thread (Java 17 and 25 alike). So the JVM's
// functions called here are the checking ones: a call is recorded, then checked
// and carried out exactly as without the recorder.
//
// The invocation interface has no such JVMTI function: the JavaVM's pointer to
// it is set to a copy whose GetEnv records.
//
// Cost when nobody records: none. The recording tables are installed when the
// first thread starts recording and the JVM's are put back when the last one
// stops (a short VM operation each time); while they are installed, a thread
// that is not recording passes through one counter check and one lookup. With
// the agent option "installed" (-agentpath:<library>=installed) the recording
// tables stay installed from the start, so that the cost of passing through
// them can be measured.
//
// Lines of the toolkit stand-in's call journal join the timeline when the
// journal is given toolkitLine (testkit.JniCalls.recordWithToolkit): a line
// appended on a recording thread is recorded as "toolkit: <line>" among the
// JNI calls, where the toolkit was called.
//
// A variadic function (CallVoidMethod, NewObject, ...) is recorded under its
// own name and carried out by the JVM's form with a va_list. Note that the C++
// members of JNIEnv in jni.h implement the variadic calls with the va_list
// forms, so C++ code that writes env->CallVoidMethod(...) is recorded as
// CallVoidMethodV.

#include <jni.h>
#include <jvmti.h>

#include <dlfcn.h>
#include <link.h>

#include <algorithm>
#include <atomic>
#include <cstdarg>
#include <cstdio>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <mutex>
#include <string>
#include <type_traits>
#include <unordered_map>
#include <vector>

namespace {

enum Function : int {
#define JNI_PLAIN(name) k##name,
#define JNI_VARARGS(name) k##name,
#include "JniFunctions.def"
#undef JNI_PLAIN
#undef JNI_VARARGS
  kGetEnv,  // of the JavaVM's invocation interface
  kFunctionCount
};

constexpr const char* kNames[kFunctionCount] = {
#define JNI_PLAIN(name) #name,
#define JNI_VARARGS(name) #name,
#include "JniFunctions.def"
#undef JNI_PLAIN
#undef JNI_VARARGS
    "GetEnv",
};

jvmtiEnv* jvmti = nullptr;
// The JVM's table as found when the VM started (never changed), and the
// recording one. Both have the running JVM's size.
jniNativeInterface* jvmTable = nullptr;
jniNativeInterface* recordingTable = nullptr;
// The JVM's functions, by Function.
void* jvmFunctions[kFunctionCount];

// The JavaVM (there is one) and its invocation interface: the JVM's, and one
// whose GetEnv records the environment lookups of a recording thread.
JavaVM* javaVm = nullptr;
const JNIInvokeInterface_* jvmInvocation = nullptr;
JNIInvokeInterface_ recordingInvocation;

std::mutex installMutex;
int installedRecorders = 0;  // recording threads, and 1 for the option "installed"
bool alwaysInstalled = false;

// --- one thread's recording ----------------------------------------------------

constexpr std::size_t kMaxCalls = 200000;

// The code of a loaded library, by address range, and whether the library is
// one of the JDK's own (libjvm.so, libjava.so, ...).
struct CodeRange {
  std::uintptr_t start, end;
  bool jdk;
};

bool jdkMethodRunning(JNIEnv* env);

struct Recorder {
  Recorder(JNIEnv* env, bool keepCalls, std::vector<CodeRange> code)
      : env(env), keepCalls(keepCalls), code(std::move(code)) {}

  // True for a call made by the JDK's own native code: from one of its
  // libraries, or from code the JVM generated (outside every library) while a
  // native method of the JDK's runs.
  bool fromJdk(const void* returnAddress) const {
    auto a = reinterpret_cast<std::uintptr_t>(returnAddress);
    for (const CodeRange& r : code)
      if (a >= r.start && a < r.end) return r.jdk;
    return jdkMethodRunning(env);
  }

  JNIEnv* env;
  bool keepCalls;
  std::vector<CodeRange> code;
  std::vector<std::string> calls;
  bool truncated = false;
  long counts[kFunctionCount] = {};
  long localCreated = 0, localDeleted = 0, localHeld = 0, localPeak = 0;
  long globalCreated = 0, globalDeleted = 0, weakCreated = 0, weakDeleted = 0;
  std::vector<long> frames;  // localHeld at each PushLocalFrame

  void madeLocal() {
    ++localCreated;
    localPeak = std::max(localPeak, ++localHeld);
  }
};

// The recording threads, found by their environment (each Java thread has its
// own). Only the thread itself registers, finds and removes its slot.
constexpr int kMaxRecorders = 16;
struct Slot {
  std::atomic<JNIEnv*> env{nullptr};
  Recorder* recorder = nullptr;
};
Slot slots[kMaxRecorders];
std::atomic<int> recordingThreads{0};

inline Recorder* recorderOf(JNIEnv* env) {
  if (recordingThreads.load(std::memory_order_relaxed) == 0) return nullptr;
  for (Slot& slot : slots)
    if (slot.env.load(std::memory_order_relaxed) == env) return slot.recorder;
  return nullptr;
}

// Field names by field ID, learnt from the lookups made while recording.
std::mutex fieldMutex;
std::unordered_map<jfieldID, std::string> fieldNames;

// --- describing arguments and results ---------------------------------------------
// An empty text leaves the value out of the record.

std::string quoted(const char* s) { return s == nullptr ? "null" : std::string("\"") + s + '"'; }

std::string describe(jclass cls) {
  if (cls == nullptr) return "null";
  char* signature = nullptr;
  if (jvmti->GetClassSignature(cls, &signature, nullptr) != JVMTI_ERROR_NONE || signature == nullptr) return "?";
  std::string text(signature);
  jvmti->Deallocate(reinterpret_cast<unsigned char*>(signature));
  return text;
}

std::string describe(jmethodID method) {
  if (method == nullptr) return "null";
  char* name = nullptr;
  char* signature = nullptr;
  if (jvmti->GetMethodName(method, &name, &signature, nullptr) != JVMTI_ERROR_NONE) return "?";
  std::string text = std::string(name) + signature;
  jvmti->Deallocate(reinterpret_cast<unsigned char*>(name));
  jvmti->Deallocate(reinterpret_cast<unsigned char*>(signature));
  return text;
}

std::string describe(jfieldID field) {
  if (field == nullptr) return "null";
  std::lock_guard<std::mutex> lock(fieldMutex);
  auto it = fieldNames.find(field);
  return it == fieldNames.end() ? "?" : it->second;
}

std::string describe(const char* text) { return quoted(text); }
std::string describe(jboolean b) { return b ? "true" : "false"; }
std::string describe(jobjectRefType t) { return std::to_string(static_cast<int>(t)); }

std::string describe(double d) {
  char buf[32];
  std::snprintf(buf, sizeof buf, "%g", d);
  return buf;
}
std::string describe(float f) { return describe(static_cast<double>(f)); }

template <class T>
std::enable_if_t<std::is_integral_v<T>, std::string> describe(T v) {
  return std::to_string(v);
}

// The JNI reference types.
template <class T>
struct IsReference : std::false_type {};
#define TAVREL_REFERENCE_TYPES(X)                                                                       \
  X(_jobject) X(_jclass) X(_jthrowable) X(_jstring) X(_jarray) X(_jbooleanArray) X(_jbyteArray)         \
  X(_jcharArray) X(_jshortArray) X(_jintArray) X(_jlongArray) X(_jfloatArray) X(_jdoubleArray)           \
  X(_jobjectArray)
#define TAVREL_IS_REFERENCE(T) \
  template <>                  \
  struct IsReference<T> : std::true_type {};
TAVREL_REFERENCE_TYPES(TAVREL_IS_REFERENCE)

template <class R>
constexpr bool isReference() {
  if constexpr (std::is_pointer_v<R>)
    return IsReference<std::remove_pointer_t<R>>::value;
  else
    return false;
}

// Object references other than classes: only a null one is shown. Other
// pointers (buffers, va_list, isCopy flags, ...) are left out.
#define TAVREL_DESCRIBE_REFERENCE(T) \
  std::string describe(T* ref) { return ref == nullptr ? "null" : ""; }
#define TAVREL_UNLESS_CLASS(T) TAVREL_DESCRIBE_##T
#define TAVREL_DESCRIBE__jclass
#define TAVREL_DESCRIBE__jobject TAVREL_DESCRIBE_REFERENCE(_jobject)
#define TAVREL_DESCRIBE__jthrowable TAVREL_DESCRIBE_REFERENCE(_jthrowable)
#define TAVREL_DESCRIBE__jstring TAVREL_DESCRIBE_REFERENCE(_jstring)
#define TAVREL_DESCRIBE__jarray TAVREL_DESCRIBE_REFERENCE(_jarray)
#define TAVREL_DESCRIBE__jbooleanArray TAVREL_DESCRIBE_REFERENCE(_jbooleanArray)
#define TAVREL_DESCRIBE__jbyteArray TAVREL_DESCRIBE_REFERENCE(_jbyteArray)
#define TAVREL_DESCRIBE__jcharArray TAVREL_DESCRIBE_REFERENCE(_jcharArray)
#define TAVREL_DESCRIBE__jshortArray TAVREL_DESCRIBE_REFERENCE(_jshortArray)
#define TAVREL_DESCRIBE__jintArray TAVREL_DESCRIBE_REFERENCE(_jintArray)
#define TAVREL_DESCRIBE__jlongArray TAVREL_DESCRIBE_REFERENCE(_jlongArray)
#define TAVREL_DESCRIBE__jfloatArray TAVREL_DESCRIBE_REFERENCE(_jfloatArray)
#define TAVREL_DESCRIBE__jdoubleArray TAVREL_DESCRIBE_REFERENCE(_jdoubleArray)
#define TAVREL_DESCRIBE__jobjectArray TAVREL_DESCRIBE_REFERENCE(_jobjectArray)
TAVREL_REFERENCE_TYPES(TAVREL_UNLESS_CLASS)

template <class T>
std::string describe(T*) {
  return "";
}

// Results: values, classes and nulls are shown; other references and
// pointers are not.
template <class R>
std::string describeResult(R r) {
  if constexpr (std::is_pointer_v<R> && !std::is_same_v<R, jclass>) {
    return r == nullptr ? "null" : "";
  } else {
    return describe(r);
  }
}

constexpr bool endsWith(const char* s, const char* suffix) {
  std::size_t n = 0, m = 0;
  while (s[n] != '\0') ++n;
  while (suffix[m] != '\0') ++m;
  if (m > n) return false;
  for (std::size_t i = 0; i < m; ++i)
    if (s[n - m + i] != suffix[i]) return false;
  return true;
}

constexpr bool startsWith(const char* s, const char* prefix) {
  for (std::size_t i = 0; prefix[i] != '\0'; ++i)
    if (s[i] != prefix[i]) return false;
  return true;
}

// The last argument of Release<Type>ArrayElements and
// ReleasePrimitiveArrayCritical is the release mode.
constexpr bool hasReleaseMode(int id) {
  return startsWith(kNames[id], "Release") && (endsWith(kNames[id], "ArrayElements") || endsWith(kNames[id], "Critical"));
}

std::string releaseMode(const std::string& mode) {
  if (mode == "0") return "0";
  if (mode == "1") return "JNI_COMMIT";
  if (mode == "2") return "JNI_ABORT";
  return mode;
}

// --- recording one call -------------------------------------------------------

// The first argument when it is a pointer (the reference that the Delete
// functions free), else null.
inline const void* firstPointer() { return nullptr; }
template <class T, class... Rest>
const void* firstPointer(T first, Rest...) {
  if constexpr (std::is_pointer_v<T>) return first;
  return nullptr;
}

template <class... A>
std::size_t begin(Recorder& r, int id, A... args) {
  ++r.counts[id];
  if ((id == kDeleteLocalRef || id == kDeleteGlobalRef || id == kDeleteWeakGlobalRef) &&
      firstPointer(args...) != nullptr) {
    if (id == kDeleteLocalRef) {
      ++r.localDeleted;
      --r.localHeld;
    } else if (id == kDeleteGlobalRef) {
      ++r.globalDeleted;
    } else {
      ++r.weakDeleted;
    }
  }
  if (!r.keepCalls) return 0;
  if (r.calls.size() >= kMaxCalls) {
    r.truncated = true;
    return kMaxCalls;
  }
  std::vector<std::string> parts{describe(args)...};
  if (hasReleaseMode(id) && !parts.empty()) parts.back() = releaseMode(parts.back());
  std::string line(kNames[id]);
  line += '(';
  bool first = true;
  for (const std::string& p : parts) {
    if (p.empty()) continue;
    if (!first) line += ", ";
    first = false;
    line += p;
  }
  line += ')';
  r.calls.push_back(std::move(line));
  return r.calls.size() - 1;
}

// Remembers the names of field IDs looked up while recording.
void learn(jfieldID field, jclass, const char* name, const char*) {
  if (field == nullptr || name == nullptr) return;
  std::lock_guard<std::mutex> lock(fieldMutex);
  fieldNames[field] = name;
}
template <class R, class... A>
void learn(R, A...) {}

template <class R, class... A>
void end(Recorder& r, int id, std::size_t index, R result, A... args) {
  if constexpr (isReference<R>()) {
    if (id == kPopLocalFrame) {
      if (!r.frames.empty()) {
        r.localHeld = r.frames.back();
        r.frames.pop_back();
      }
      if (result != nullptr) r.madeLocal();
    } else if (result != nullptr) {
      if (id == kNewGlobalRef)
        ++r.globalCreated;
      else if (id == kNewWeakGlobalRef)
        ++r.weakCreated;
      else
        r.madeLocal();
    }
  }
  if constexpr (std::is_same_v<R, jint>) {
    if (id == kPushLocalFrame && result == 0) r.frames.push_back(r.localHeld);
  }
  learn(result, args...);
  if (!r.keepCalls || index >= r.calls.size()) return;
  std::string text = describeResult(result);
  if (!text.empty()) r.calls[index] += " -> " + text;
}

// Runs the JVM's function, recording the call when the thread records and the
// caller (known by the return address) is not the JDK's own code. Kept out of
// line: the tables' functions only come here while some thread records.
template <class R, class... P, class... A>
[[gnu::noinline]] R record(int id, const void* caller, R (*jvmFunction)(JNIEnv*, P...), JNIEnv* env, A... args) {
  Recorder* r = recorderOf(env);
  if (r == nullptr || r->fromJdk(caller)) return jvmFunction(env, args...);
  std::size_t index = begin(*r, id, args...);
  if constexpr (std::is_void_v<R>) {
    jvmFunction(env, args...);
  } else {
    R result = jvmFunction(env, args...);
    end(*r, id, index, result, args...);
    return result;
  }
}

// The JVM's function straight away while no thread records.
template <class R, class... P, class... A>
inline R invoke(int id, const void* caller, R (*jvmFunction)(JNIEnv*, P...), JNIEnv* env, A... args) {
  if (__builtin_expect(recordingThreads.load(std::memory_order_relaxed) == 0, 1)) return jvmFunction(env, args...);
  return record(id, caller, jvmFunction, env, args...);
}

// --- the recording table's functions -----------------------------------------------

template <int Id, class F>
struct Plain;

template <int Id, class R, class... A>
struct Plain<Id, R(JNICALL*)(JNIEnv*, A...)> {
  static R JNICALL call(JNIEnv* env, A... args) {
    return invoke(Id, __builtin_return_address(0), reinterpret_cast<R (*)(JNIEnv*, A...)>(jvmFunctions[Id]), env,
                  args...);
  }
};

// Variadic functions end in a method ID and take one or two references
// before it; the JVM's va_list form FV (function VId) carries them out.
template <int Id, int VId, class F, class FV>
struct Varargs;

template <int Id, int VId, class R, class T, class FV>
struct Varargs<Id, VId, R(JNICALL*)(JNIEnv*, T, jmethodID, ...), FV> {
  static R JNICALL call(JNIEnv* env, T target, jmethodID method, ...) {
    va_list args;
    va_start(args, method);
    if constexpr (std::is_void_v<R>) {
      invoke(Id, __builtin_return_address(0), reinterpret_cast<FV>(jvmFunctions[VId]), env, target, method, args);
      va_end(args);
    } else {
      R result = invoke(Id, __builtin_return_address(0), reinterpret_cast<FV>(jvmFunctions[VId]), env, target, method, args);
      va_end(args);
      return result;
    }
  }
};

template <int Id, int VId, class R, class T, class U, class FV>
struct Varargs<Id, VId, R(JNICALL*)(JNIEnv*, T, U, jmethodID, ...), FV> {
  static R JNICALL call(JNIEnv* env, T target, U cls, jmethodID method, ...) {
    va_list args;
    va_start(args, method);
    if constexpr (std::is_void_v<R>) {
      invoke(Id, __builtin_return_address(0), reinterpret_cast<FV>(jvmFunctions[VId]), env, target, cls, method, args);
      va_end(args);
    } else {
      R result = invoke(Id, __builtin_return_address(0), reinterpret_cast<FV>(jvmFunctions[VId]), env, target, cls, method, args);
      va_end(args);
      return result;
    }
  }
};

// GetEnv of the invocation interface: recorded when it finds the environment
// of a recording thread (a thread without one records nothing).
jint JNICALL recordingGetEnv(JavaVM* vm, void** penv, jint version) {
  const void* caller = __builtin_return_address(0);
  jint rc = jvmInvocation->GetEnv(vm, penv, version);
  const bool jni = (version & 0x30000000) == 0;  // not a JVMTI version
  if (rc != JNI_OK || !jni || penv == nullptr) return rc;
  Recorder* r = recorderOf(static_cast<JNIEnv*>(*penv));
  if (r == nullptr || r->fromJdk(caller)) return rc;
  char text[16];
  std::snprintf(text, sizeof text, "0x%x", static_cast<unsigned>(version));
  std::size_t index = begin(*r, kGetEnv);
  if (r->keepCalls && index < r->calls.size()) r->calls[index] = std::string("GetEnv(") + text + ") -> " + std::to_string(rc);
  return rc;
}

// A line of the toolkit's call journal, appended on this thread.
void toolkitLine(const char* line) {
  if (javaVm == nullptr || jvmInvocation == nullptr) return;
  void* penv = nullptr;
  if (jvmInvocation->GetEnv(javaVm, &penv, JNI_VERSION_1_2) != JNI_OK || penv == nullptr) return;
  Recorder* r = recorderOf(static_cast<JNIEnv*>(penv));
  if (r == nullptr || !r->keepCalls) return;
  if (r->calls.size() >= kMaxCalls) {
    r->truncated = true;
    return;
  }
  r->calls.push_back(std::string("toolkit: ") + line);
}

void buildRecordingTable() {
#define JNI_PLAIN(name)                                                         \
  jvmFunctions[k##name] = reinterpret_cast<void*>(jvmTable->name);              \
  recordingTable->name = &Plain<k##name, decltype(JNINativeInterface_::name)>::call;
#define JNI_VARARGS(name)                                                                      \
  jvmFunctions[k##name] = reinterpret_cast<void*>(jvmTable->name);                             \
  recordingTable->name = &Varargs<k##name, k##name##V, decltype(JNINativeInterface_::name),    \
                                 decltype(JNINativeInterface_::name##V)>::call;
#include "JniFunctions.def"
#undef JNI_PLAIN
#undef JNI_VARARGS
}

// Installs the recording tables, or puts the JVM's back.
bool install(bool recording) {
  if (jvmti->SetJNIFunctionTable(recording ? recordingTable : jvmTable) != JVMTI_ERROR_NONE) return false;
  javaVm->functions = recording ? &recordingInvocation : jvmInvocation;
  return true;
}

// The folder of the JDK's libraries: the parent of libjvm.so's folder.
std::string jdkLibraryFolder() {
  Dl_info info;
  if (dladdr(reinterpret_cast<void*>(jvmTable->GetVersion), &info) == 0 || info.dli_fname == nullptr) return "";
  char* real = realpath(info.dli_fname, nullptr);
  if (real == nullptr) return "";
  std::string path(real);
  std::free(real);
  for (int i = 0; i < 2; ++i) {
    std::size_t slash = path.rfind('/');
    if (slash == std::string::npos) return "";
    path.resize(slash);
  }
  return path + '/';
}

std::string jdkFolder;

// The executable code of the libraries loaded now.
std::vector<CodeRange> loadedCode() {
  std::vector<CodeRange> ranges;
  dl_iterate_phdr(
      [](dl_phdr_info* object, std::size_t, void* data) {
        bool jdk = false;
        if (object->dlpi_name != nullptr && object->dlpi_name[0] != '\0' && !jdkFolder.empty()) {
          char* real = realpath(object->dlpi_name, nullptr);
          jdk = real != nullptr && std::strncmp(real, jdkFolder.c_str(), jdkFolder.size()) == 0;
          std::free(real);
        }
        auto& out = *static_cast<std::vector<CodeRange>*>(data);
        for (int i = 0; i < object->dlpi_phnum; ++i) {
          const ElfW(Phdr)& segment = object->dlpi_phdr[i];
          if (segment.p_type != PT_LOAD || (segment.p_flags & PF_X) == 0) continue;
          std::uintptr_t start = object->dlpi_addr + segment.p_vaddr;
          out.push_back(CodeRange{start, start + segment.p_memsz, jdk});
        }
        return 0;
      },
      &ranges);
  return ranges;
}

// True when the innermost Java frame of this thread is a native method of a
// JDK class (java.*, javax.*, jdk.*, sun.*).
bool jdkMethodRunning(JNIEnv* env) {
  jmethodID method = nullptr;
  jlocation location = 0;
  if (jvmti->GetFrameLocation(nullptr, 0, &method, &location) != JVMTI_ERROR_NONE || method == nullptr) return false;
  jclass declaring = nullptr;
  if (jvmti->GetMethodDeclaringClass(method, &declaring) != JVMTI_ERROR_NONE) return false;
  std::string signature = describe(declaring);
  reinterpret_cast<void (*)(JNIEnv*, jobject)>(jvmFunctions[kDeleteLocalRef])(env, declaring);
  for (const char* prefix : {"Ljava/", "Ljavax/", "Ljdk/", "Lsun/"})
    if (signature.rfind(prefix, 0) == 0) return true;
  return false;
}

void JNICALL vmInit(jvmtiEnv* env, JNIEnv*, jthread) {
  jniNativeInterface* found = nullptr;
  jniNativeInterface* copy = nullptr;
  if (env->GetJNIFunctionTable(&found) != JVMTI_ERROR_NONE) return;
  if (env->GetJNIFunctionTable(&copy) != JVMTI_ERROR_NONE) return;
  jvmTable = found;
  jvmInvocation = javaVm->functions;
  recordingInvocation = *jvmInvocation;
  recordingInvocation.GetEnv = &recordingGetEnv;
  recordingTable = copy;
  buildRecordingTable();
  jdkFolder = jdkLibraryFolder();
  if (alwaysInstalled) {
    std::lock_guard<std::mutex> lock(installMutex);
    if (install(true)) installedRecorders = 1;
  }
}

}  // namespace

extern "C" {

JNIEXPORT jint JNICALL Agent_OnLoad(JavaVM* vm, char* options, void*) {
  alwaysInstalled = options != nullptr && std::strcmp(options, "installed") == 0;
  if (vm->GetEnv(reinterpret_cast<void**>(&jvmti), JVMTI_VERSION_1_2) != JNI_OK) return JNI_ERR;
  javaVm = vm;
  jvmtiEventCallbacks callbacks;
  std::memset(&callbacks, 0, sizeof callbacks);
  callbacks.VMInit = &vmInit;
  if (jvmti->SetEventCallbacks(&callbacks, sizeof callbacks) != JVMTI_ERROR_NONE) return JNI_ERR;
  if (jvmti->SetEventNotificationMode(JVMTI_ENABLE, JVMTI_EVENT_VM_INIT, nullptr) != JVMTI_ERROR_NONE) return JNI_ERR;
  return JNI_OK;
}

// --- com.kestrum.tavrel.testkit.JniCalls ------------------------------------------

JNIEXPORT jboolean JNICALL Java_com_kestrum_tavrel_testkit_JniCalls_ready(JNIEnv*, jclass) {
  return recordingTable != nullptr ? JNI_TRUE : JNI_FALSE;
}

// Starts recording on this thread; false when the agent is not ready, the
// thread records already, or too many threads record.
JNIEXPORT jboolean JNICALL Java_com_kestrum_tavrel_testkit_JniCalls_start(JNIEnv* env, jclass, jboolean keepCalls) {
  if (recordingTable == nullptr) return JNI_FALSE;
  for (Slot& slot : slots)
    if (slot.env.load() == env) return JNI_FALSE;
  {
    std::lock_guard<std::mutex> lock(installMutex);
    if (installedRecorders == 0 && !install(true)) return JNI_FALSE;
    ++installedRecorders;
  }
  // A slot is claimed with a compare-exchange (another thread may be claiming
  // one too); only its owner reads its recorder.
  Recorder* recorder = new Recorder(env, keepCalls != JNI_FALSE, loadedCode());
  for (Slot& slot : slots) {
    JNIEnv* expected = nullptr;
    if (slot.env.compare_exchange_strong(expected, env)) {
      slot.recorder = recorder;
      recordingThreads.fetch_add(1);
      return JNI_TRUE;  // from here on, this thread's calls are recorded
    }
  }
  delete recorder;
  std::lock_guard<std::mutex> lock(installMutex);
  if (--installedRecorders == 0) install(false);
  return JNI_FALSE;
}

// Stops recording on this thread; the recording's handle, 0 when there was none.
JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_testkit_JniCalls_stop(JNIEnv* env, jclass) {
  Recorder* recorder = nullptr;
  for (Slot& slot : slots) {
    if (slot.env.load() == env) {
      recorder = slot.recorder;
      slot.recorder = nullptr;
      recordingThreads.fetch_sub(1);
      slot.env.store(nullptr);
      break;
    }
  }
  if (recorder == nullptr) return 0;
  {
    std::lock_guard<std::mutex> lock(installMutex);
    if (--installedRecorders == 0) install(false);
  }
  return static_cast<jlong>(reinterpret_cast<std::intptr_t>(recorder));
}

}  // extern "C"

namespace {
Recorder& recording(jlong handle) { return *reinterpret_cast<Recorder*>(static_cast<std::intptr_t>(handle)); }
}  // namespace

extern "C" {

JNIEXPORT jobjectArray JNICALL Java_com_kestrum_tavrel_testkit_JniCalls_calls(JNIEnv* env, jclass, jlong handle) {
  const std::vector<std::string>& calls = recording(handle).calls;
  jclass stringClass = env->FindClass("java/lang/String");
  jobjectArray result = env->NewObjectArray(static_cast<jsize>(calls.size()), stringClass, nullptr);
  env->DeleteLocalRef(stringClass);
  if (result == nullptr) return nullptr;
  for (std::size_t i = 0; i < calls.size(); ++i) {
    jstring line = env->NewStringUTF(calls[i].c_str());
    if (line == nullptr) return nullptr;
    env->SetObjectArrayElement(result, static_cast<jsize>(i), line);
    env->DeleteLocalRef(line);
  }
  return result;
}

// How often each function was called, in the order of functionNames().
JNIEXPORT jlongArray JNICALL Java_com_kestrum_tavrel_testkit_JniCalls_counts(JNIEnv* env, jclass, jlong handle) {
  jlongArray result = env->NewLongArray(kFunctionCount);
  if (result != nullptr) {
    static_assert(sizeof(jlong) == sizeof(long), "counts are longs");
    env->SetLongArrayRegion(result, 0, kFunctionCount, reinterpret_cast<const jlong*>(recording(handle).counts));
  }
  return result;
}

// Local references created, deleted and held at most; global references
// created and deleted; weak global references created and deleted; 1 when the
// list of calls was cut short.
JNIEXPORT jlongArray JNICALL Java_com_kestrum_tavrel_testkit_JniCalls_references(JNIEnv* env, jclass,
                                                                                  jlong handle) {
  const Recorder& r = recording(handle);
  const jlong values[] = {r.localCreated,  r.localDeleted, r.localPeak,   r.globalCreated,
                          r.globalDeleted, r.weakCreated,  r.weakDeleted, r.truncated ? 1 : 0};
  const jsize n = static_cast<jsize>(sizeof values / sizeof values[0]);
  jlongArray result = env->NewLongArray(n);
  if (result != nullptr) env->SetLongArrayRegion(result, 0, n, values);
  return result;
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_testkit_JniCalls_release(JNIEnv*, jclass, jlong handle) {
  delete &recording(handle);
}

// The address of the function that takes the toolkit journal's lines.
JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_testkit_JniCalls_toolkitListener(JNIEnv*, jclass) {
  return static_cast<jlong>(reinterpret_cast<std::intptr_t>(&toolkitLine));
}

JNIEXPORT jobjectArray JNICALL Java_com_kestrum_tavrel_testkit_JniCalls_functionNames(JNIEnv* env, jclass) {
  jclass stringClass = env->FindClass("java/lang/String");
  jobjectArray result = env->NewObjectArray(kFunctionCount, stringClass, nullptr);
  env->DeleteLocalRef(stringClass);
  if (result == nullptr) return nullptr;
  for (int i = 0; i < kFunctionCount; ++i) {
    jstring name = env->NewStringUTF(kNames[i]);
    if (name == nullptr) return nullptr;
    env->SetObjectArrayElement(result, i, name);
    env->DeleteLocalRef(name);
  }
  return result;
}

}  // extern "C"
