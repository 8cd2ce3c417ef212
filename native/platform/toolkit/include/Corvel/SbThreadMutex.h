// A mutual-exclusion lock. A recursive mutex may be locked again by the thread
// that holds it; a plain one must not be (that thread would wait forever).
#pragma once

#include <Corvel/StandIn.h>

#include <pthread.h>

class SbThreadMutex {
 public:
  explicit SbThreadMutex(bool recursive = false);
  ~SbThreadMutex();
  SbThreadMutex(const SbThreadMutex&) = delete;
  SbThreadMutex& operator=(const SbThreadMutex&) = delete;

  TAVREL_ASSUMED int lock();
  TAVREL_ASSUMED int unlock();
  TAVREL_STANDIN_ONLY bool isRecursive() const { return recursive; }

 private:
  pthread_mutex_t mutex;
  bool recursive;
};
