// Conversion of Java primitive arrays into native arrays and back.
//
// An ArrayHelper lives on the stack of one native call. Each toNativeArray
// call copies one Java array into a native buffer owned by the helper and
// returns the buffer; the buffer stays valid until the helper is destroyed.
// The destructor releases the buffers in reverse order of conversion and,
// for arrays converted ReadWrite, first copies the native elements back into
// the Java array. ReadOnly arrays are never written back, whatever the native
// side did to the buffer.
//
// Decisions of this implementation:
//  - A null Java array gives a null pointer; nothing is remembered for it.
//  - An empty Java array gives a valid, non-null pointer to no elements.
//  - Boolean arrays become native arrays of int (one int per element, 0 or 1),
//    so a caller may store an int flag into any element; on copy-back every
//    non-zero element becomes true.
//  - Short arrays are read as unsigned: the Java bits are kept unchanged.
//  - fromNativeArray with a null source returns a null Java array, whatever
//    the count; with a count of 0 and a non-null source, an empty Java array.
//  - The copy-back also works while a Java exception is pending: the exception
//    is set aside for the copy and raised again afterwards.
#pragma once

#include <Corvel/StandIn.h>

#include <jni.h>

#include <cstddef>

class ArrayHelper {
 public:
  enum AccessMode { ReadWrite = 0, ReadOnly = 2 };

  explicit ArrayHelper(JNIEnv* env);
  ~ArrayHelper();
  ArrayHelper(const ArrayHelper&) = delete;
  ArrayHelper& operator=(const ArrayHelper&) = delete;

  float* toNativeArray(jfloatArray array, AccessMode mode);
  int* toNativeArray(jintArray array, AccessMode mode);
  jbyte* toNativeArray(jbyteArray array, AccessMode mode);
  int* toNativeArray(jbooleanArray array, AccessMode mode);
  unsigned short* toUnsignedNativeArray(jshortArray array, AccessMode mode);

  static jfloatArray fromNativeArray(JNIEnv* env, float const* data, unsigned long count);
  static jintArray fromNativeArray(JNIEnv* env, int const* data, unsigned long count);

 private:
  enum class Kind : unsigned char { Float, Int, Byte, Boolean, Short };
  struct Converted {
    TAVREL_STANDIN_ONLY jarray array;
    void* data;
    jsize length;
    TAVREL_STANDIN_ONLY Kind kind;
    AccessMode mode;
  };

  void* convert(jarray array, Kind kind, AccessMode mode);
  void release(Converted& c);
  Converted& push(const Converted& c);

  JNIEnv* env;
  static constexpr int kInline = 6;
  Converted inlineSlots[kInline];
  Converted* overflow = nullptr;
  int overflowCapacity = 0;
  int count = 0;
};
