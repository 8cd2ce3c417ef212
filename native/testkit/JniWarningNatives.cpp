// com.kestrum.tavrel.testkit.JniWarnings: catches what the JVM's JNI checks
// (-Xcheck:jni) print, so that a test can fail on a warning.
//
// install() puts a pipe in place of the process's standard output and
// standard error. A reader thread copies everything through to the original
// streams unchanged and keeps the lines that are JNI warnings. drain() waits
// until everything written so far has been read, then returns and forgets the
// warnings seen.

#include <jni.h>
#include <pthread.h>
#include <unistd.h>

#include <condition_variable>
#include <cstring>
#include <mutex>
#include <string>
#include <vector>

#include "TestkitSupport.h"

namespace {
struct Channel {
  int readFd = -1;
  int writeFd = -1;
  int originalFd = -1;
  std::string partial;
  unsigned long markersSeen = 0;
};

std::mutex mutex;
std::condition_variable markerCond;
std::vector<std::string> warnings;
Channel channels[2];  // stdout, stderr
bool installed = false;
unsigned long markersWritten = 0;
const char kMarker[] = "\x01jni-warning-marker\x01\n";

bool isWarning(const std::string& line) {
  return line.find("WARNING in native method") != std::string::npos ||
         line.find("WARNING: JNI local refs") != std::string::npos ||
         line.find("FATAL ERROR in native method") != std::string::npos;
}

void* readerLoop(void* arg) {
  Channel& ch = *static_cast<Channel*>(arg);
  char buf[4096];
  for (;;) {
    ssize_t n = read(ch.readFd, buf, sizeof buf);
    if (n <= 0) break;
    std::lock_guard<std::mutex> lock(mutex);
    ch.partial.append(buf, static_cast<std::size_t>(n));
    std::size_t pos;
    while ((pos = ch.partial.find('\n')) != std::string::npos) {
      std::string line = ch.partial.substr(0, pos + 1);
      ch.partial.erase(0, pos + 1);
      if (line == kMarker) {
        ++ch.markersSeen;
        markerCond.notify_all();
        continue;
      }
      if (isWarning(line)) warnings.push_back(line.substr(0, line.size() - 1));
      ssize_t off = 0;
      while (off < static_cast<ssize_t>(line.size())) {
        ssize_t w = write(ch.originalFd, line.data() + off, line.size() - off);
        if (w <= 0) break;
        off += w;
      }
    }
  }
  return nullptr;
}

bool installChannel(Channel& ch, int fd) {
  int fds[2];
  if (pipe(fds) != 0) return false;
  ch.originalFd = dup(fd);
  ch.readFd = fds[0];
  ch.writeFd = fds[1];
  if (dup2(ch.writeFd, fd) < 0) return false;
  pthread_t thread;
  pthread_attr_t attr;
  pthread_attr_init(&attr);
  pthread_attr_setdetachstate(&attr, PTHREAD_CREATE_DETACHED);
  bool ok = pthread_create(&thread, &attr, readerLoop, &ch) == 0;
  pthread_attr_destroy(&attr);
  return ok;
}
}  // namespace

extern "C" {

JNIEXPORT jboolean JNICALL Java_com_kestrum_tavrel_testkit_JniWarnings_install(JNIEnv*, jclass) {
  std::lock_guard<std::mutex> lock(mutex);
  if (installed) return JNI_TRUE;
  installed = installChannel(channels[0], STDOUT_FILENO) && installChannel(channels[1], STDERR_FILENO);
  return installed ? JNI_TRUE : JNI_FALSE;
}

JNIEXPORT jobjectArray JNICALL Java_com_kestrum_tavrel_testkit_JniWarnings_drain(JNIEnv* env, jclass) {
  std::vector<std::string> seen;
  {
    std::unique_lock<std::mutex> lock(mutex);
    if (installed) {
      unsigned long target = ++markersWritten;
      lock.unlock();
      for (int fd : {STDOUT_FILENO, STDERR_FILENO}) {
        ssize_t ignored = write(fd, kMarker, sizeof kMarker - 1);
        (void)ignored;
      }
      lock.lock();
      markerCond.wait_for(lock, std::chrono::seconds(10), [target] {
        return channels[0].markersSeen >= target && channels[1].markersSeen >= target;
      });
    }
    seen.swap(warnings);
  }
  return testkit::toJavaStrings(env, seen);
}

}  // extern "C"

extern "C" JNIEXPORT void JNICALL Java_com_kestrum_tavrel_testkit_JniWarnings_provokeLocalReferenceWarning(JNIEnv* env,
                                                                                                          jclass) {
  // More local references than a native method may hold without asking.
  for (int i = 0; i < 40; ++i) env->NewStringUTF("leak");
}

extern "C" JNIEXPORT void JNICALL Java_com_kestrum_tavrel_testkit_JniWarnings_provokeExceptionPendingWarning(
    JNIEnv* env, jclass) {
  // A call that JNI forbids while an exception is pending.
  jclass cls = env->FindClass("java/lang/IllegalStateException");
  env->ThrowNew(cls, "pending");
  env->DeleteLocalRef(cls);
  jclass again = env->FindClass("java/lang/String");
  env->ExceptionClear();
  env->DeleteLocalRef(again);
}
