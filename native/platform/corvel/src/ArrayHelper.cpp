#include <CorvelJNI/ArrayHelper.h>

#include <cstdlib>
#include <cstring>
#include <new>

namespace {
template <class T>
T* allocate(jsize n) {
  // One element at least, so that an empty array still gives a pointer.
  void* p = std::malloc(sizeof(T) * static_cast<std::size_t>(n > 0 ? n : 1));
  if (p == nullptr) throw std::bad_alloc();
  return static_cast<T*>(p);
}
}  // namespace

ArrayHelper::ArrayHelper(JNIEnv* env) : env(env) {}

ArrayHelper::~ArrayHelper() {
  bool hasReadWrite = false;
  for (int i = 0; i < count && !hasReadWrite; ++i)
    hasReadWrite = (i < kInline ? inlineSlots[i] : overflow[i - kInline]).mode == ReadWrite;

  // Copying back is not allowed while an exception is pending: set it aside.
  jthrowable pending = nullptr;
  if (hasReadWrite && env->ExceptionCheck()) {
    pending = env->ExceptionOccurred();
    env->ExceptionClear();
  }
  for (int i = count - 1; i >= 0; --i) release(i < kInline ? inlineSlots[i] : overflow[i - kInline]);
  std::free(overflow);
  if (pending != nullptr) {
    env->Throw(pending);
    env->DeleteLocalRef(pending);
  }
}

ArrayHelper::Converted& ArrayHelper::push(const Converted& c) {
  if (count < kInline) {
    inlineSlots[count] = c;
    return inlineSlots[count++];
  }
  int index = count - kInline;
  if (index >= overflowCapacity) {
    int capacity = overflowCapacity ? overflowCapacity * 2 : 8;
    void* grown = std::realloc(overflow, sizeof(Converted) * static_cast<std::size_t>(capacity));
    if (grown == nullptr) {
      std::free(c.data);
      throw std::bad_alloc();
    }
    overflow = static_cast<Converted*>(grown);
    overflowCapacity = capacity;
  }
  overflow[index] = c;
  ++count;
  return overflow[index];
}

void* ArrayHelper::convert(jarray array, Kind kind, AccessMode mode) {
  if (array == nullptr) return nullptr;
  const jsize n = env->GetArrayLength(array);
  void* data = nullptr;
  switch (kind) {
    case Kind::Float: {
      float* p = allocate<float>(n);
      env->GetFloatArrayRegion(static_cast<jfloatArray>(array), 0, n, p);
      data = p;
      break;
    }
    case Kind::Int: {
      jint* p = allocate<jint>(n);
      env->GetIntArrayRegion(static_cast<jintArray>(array), 0, n, p);
      data = p;
      break;
    }
    case Kind::Byte: {
      jbyte* p = allocate<jbyte>(n);
      env->GetByteArrayRegion(static_cast<jbyteArray>(array), 0, n, p);
      data = p;
      break;
    }
    case Kind::Short: {
      jshort* p = allocate<jshort>(n);
      env->GetShortArrayRegion(static_cast<jshortArray>(array), 0, n, p);
      data = p;
      break;
    }
    case Kind::Boolean: {
      int* p = allocate<int>(n);
      if (n > 0) {
        jboolean* bytes = allocate<jboolean>(n);
        env->GetBooleanArrayRegion(static_cast<jbooleanArray>(array), 0, n, bytes);
        for (jsize i = 0; i < n; ++i) p[i] = bytes[i] ? 1 : 0;
        std::free(bytes);
      }
      data = p;
      break;
    }
  }
  return push(Converted{array, data, n, kind, mode}).data;
}

void ArrayHelper::release(Converted& c) {
  if (c.mode == ReadWrite && c.length > 0) {
    switch (c.kind) {
      case Kind::Float:
        env->SetFloatArrayRegion(static_cast<jfloatArray>(c.array), 0, c.length, static_cast<float*>(c.data));
        break;
      case Kind::Int:
        env->SetIntArrayRegion(static_cast<jintArray>(c.array), 0, c.length, static_cast<jint*>(c.data));
        break;
      case Kind::Byte:
        env->SetByteArrayRegion(static_cast<jbyteArray>(c.array), 0, c.length, static_cast<jbyte*>(c.data));
        break;
      case Kind::Short:
        env->SetShortArrayRegion(static_cast<jshortArray>(c.array), 0, c.length, static_cast<jshort*>(c.data));
        break;
      case Kind::Boolean: {
        jboolean* bytes = static_cast<jboolean*>(std::malloc(static_cast<std::size_t>(c.length)));
        if (bytes != nullptr) {
          const int* ints = static_cast<int*>(c.data);
          for (jsize i = 0; i < c.length; ++i) bytes[i] = ints[i] != 0 ? JNI_TRUE : JNI_FALSE;
          env->SetBooleanArrayRegion(static_cast<jbooleanArray>(c.array), 0, c.length, bytes);
          std::free(bytes);
        }
        break;
      }
    }
  }
  std::free(c.data);
  c.data = nullptr;
}

float* ArrayHelper::toNativeArray(jfloatArray array, AccessMode mode) {
  return static_cast<float*>(convert(array, Kind::Float, mode));
}

int* ArrayHelper::toNativeArray(jintArray array, AccessMode mode) {
  return static_cast<int*>(convert(array, Kind::Int, mode));
}

jbyte* ArrayHelper::toNativeArray(jbyteArray array, AccessMode mode) {
  return static_cast<jbyte*>(convert(array, Kind::Byte, mode));
}

int* ArrayHelper::toNativeArray(jbooleanArray array, AccessMode mode) {
  return static_cast<int*>(convert(array, Kind::Boolean, mode));
}

unsigned short* ArrayHelper::toUnsignedNativeArray(jshortArray array, AccessMode mode) {
  return static_cast<unsigned short*>(convert(array, Kind::Short, mode));
}

jfloatArray ArrayHelper::fromNativeArray(JNIEnv* env, float const* data, unsigned long count) {
  if (data == nullptr) return nullptr;
  jfloatArray result = env->NewFloatArray(static_cast<jsize>(count));
  if (result != nullptr && count > 0) env->SetFloatArrayRegion(result, 0, static_cast<jsize>(count), data);
  return result;
}

jintArray ArrayHelper::fromNativeArray(JNIEnv* env, int const* data, unsigned long count) {
  if (data == nullptr) return nullptr;
  jintArray result = env->NewIntArray(static_cast<jsize>(count));
  if (result != nullptr && count > 0) env->SetIntArrayRegion(result, 0, static_cast<jsize>(count), data);
  return result;
}
