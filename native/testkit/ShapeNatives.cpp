// com.kestrum.tavrel.testkit.Shapes: inside the shapes and pie charts of the
// toolkit stand-in (what their definitions computed, what they built), and
// picked paths.

#include <jni.h>

#include <Corvel/SoPath.h>
#include <CorvelJNI/ArrayHelper.h>
#include <Tavrel/PoArrow.h>
#include <Tavrel/PoArrow3.h>
#include <Tavrel/PoCircle.h>
#include <Tavrel/PoCircle3.h>
#include <Tavrel/PoCircleArc.h>
#include <Tavrel/PoCircleArc3.h>
#include <Tavrel/PoParallelogram.h>
#include <Tavrel/PoParallelogram3.h>
#include <Tavrel/PoPieChart3D.h>
#include <Tavrel/PoPieChartRep.h>
#include <Tavrel/PoRectangle.h>

#include <cstdint>
#include <initializer_list>
#include <vector>

namespace {
template <class T>
T* from(jlong handle) {
  return reinterpret_cast<T*>(static_cast<std::intptr_t>(handle));
}

jfloatArray floats(JNIEnv* env, const std::vector<float>& values) {
  return ArrayHelper::fromNativeArray(env, values.data(), values.size());
}

void add(std::vector<float>& out, const SbVec3f& v) { out.insert(out.end(), v.getValue(), v.getValue() + 3); }
void add(std::vector<float>& out, const SbVec2f& v) { out.insert(out.end(), v.getValue(), v.getValue() + 2); }
}  // namespace

extern "C" {

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_testkit_Shapes_newPath(JNIEnv*, jclass, jlong node, jfloat x,
                                                                      jfloat y) {
  SoPath* path = new SoPath;
  if (node != 0) path->append(from<SoNode>(node));
  path->setPickedPoint(SbVec3f(x, y, 0));
  return static_cast<jlong>(reinterpret_cast<std::intptr_t>(path));
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_testkit_Shapes_deletePath(JNIEnv*, jclass, jlong path) {
  delete from<SoPath>(path);
}

// centre x, y, radius
JNIEXPORT jfloatArray JNICALL Java_com_kestrum_tavrel_testkit_Shapes_circle(JNIEnv* env, jclass, jlong node) {
  const PoCircle* c = from<PoCircle>(node);
  return floats(env, {c->getCenter()[0], c->getCenter()[1], c->getRadius()});
}

// centre x, y, z, radius, normal x, y, z
JNIEXPORT jfloatArray JNICALL Java_com_kestrum_tavrel_testkit_Shapes_circle3(JNIEnv* env, jclass, jlong node) {
  const PoCircle3* c = from<PoCircle3>(node);
  std::vector<float> out;
  add(out, c->getCenter());
  out.push_back(c->getRadius());
  add(out, c->getNormal());
  return floats(env, out);
}

// centre x, y, radius, start angle, sweep, end x, y
JNIEXPORT jfloatArray JNICALL Java_com_kestrum_tavrel_testkit_Shapes_arc(JNIEnv* env, jclass, jlong node) {
  const PoCircleArc* a = from<PoCircleArc>(node);
  std::vector<float> out;
  add(out, a->getCenter());
  out.insert(out.end(), {a->getRadius(), a->getStartAngle(), a->getSweep()});
  add(out, a->getEndPoint());
  return floats(env, out);
}

// centre x, y, z, radius, normal x, y, z, sweep, start x, y, z, end x, y, z
JNIEXPORT jfloatArray JNICALL Java_com_kestrum_tavrel_testkit_Shapes_arc3(JNIEnv* env, jclass, jlong node) {
  const PoCircleArc3* a = from<PoCircleArc3>(node);
  std::vector<float> out;
  add(out, a->getCenter());
  out.push_back(a->getRadius());
  add(out, a->getNormal());
  out.push_back(a->getSweep());
  add(out, a->getStartPoint());
  add(out, a->getEndPoint());
  return floats(env, out);
}

// The number of points kept, then the points (2 or 3 floats each).
JNIEXPORT jfloatArray JNICALL Java_com_kestrum_tavrel_testkit_Shapes_arrow(JNIEnv* env, jclass, jlong node,
                                                                          jboolean is3) {
  std::vector<float> out;
  if (is3) {
    const PoArrow3* a = from<PoArrow3>(node);
    out.push_back(static_cast<float>(a->getNumPoints()));
    for (const SbVec3f& p : a->getPoints()) add(out, p);
  } else {
    const PoArrow* a = from<PoArrow>(node);
    out.push_back(static_cast<float>(a->getNumPoints()));
    for (const SbVec2f& p : a->getPoints()) add(out, p);
  }
  return floats(env, out);
}

// The four corners (2 or 3 floats each).
JNIEXPORT jfloatArray JNICALL Java_com_kestrum_tavrel_testkit_Shapes_corners(JNIEnv* env, jclass, jlong node,
                                                                            jboolean is3) {
  std::vector<float> out;
  for (int i = 0; i < 4; ++i) {
    if (is3) {
      add(out, from<PoParallelogram3>(node)->getCorners()[i]);
    } else {
      add(out, from<PoParallelogram>(node)->getCorners()[i]);
    }
  }
  return floats(env, out);
}

// The two corners of a rectangle.
JNIEXPORT jfloatArray JNICALL Java_com_kestrum_tavrel_testkit_Shapes_rectangle(JNIEnv* env, jclass, jlong node) {
  std::vector<float> out;
  add(out, from<PoRectangle>(node)->getCorner1());
  add(out, from<PoRectangle>(node)->getCorner2());
  return floats(env, out);
}

// The chart's number of slices (its short), then per slice: value, start
// angle, sweep, red, green, blue.
JNIEXPORT jfloatArray JNICALL Java_com_kestrum_tavrel_testkit_Shapes_slices(JNIEnv* env, jclass, jlong chart) {
  const PoPieChart* c = from<PoPieChart>(chart);
  std::vector<float> out{static_cast<float>(c->getNumSlices())};
  for (const PoPieChart::Slice& s : c->getSlices()) {
    out.insert(out.end(), {s.value, s.startAngle, s.sweep});
    add(out, s.color);
  }
  return floats(env, out);
}

JNIEXPORT jobjectArray JNICALL Java_com_kestrum_tavrel_testkit_Shapes_sliceNames(JNIEnv* env, jclass, jlong chart) {
  const PoPieChart* c = from<PoPieChart>(chart);
  jclass stringClass = env->FindClass("java/lang/String");
  jobjectArray names = env->NewObjectArray(static_cast<jsize>(c->getSlices().size()), stringClass, nullptr);
  for (std::size_t i = 0; i < c->getSlices().size(); ++i) {
    jstring name = env->NewStringUTF(c->getSlices()[i].name.c_str());
    env->SetObjectArrayElement(names, static_cast<jsize>(i), name);
    env->DeleteLocalRef(name);
  }
  return names;
}

// centre x, y, z, radius, height.
JNIEXPORT jfloatArray JNICALL Java_com_kestrum_tavrel_testkit_Shapes_pie3(JNIEnv* env, jclass, jlong chart) {
  const PoPieChart3D* c = from<PoPieChart3D>(chart);
  std::vector<float> out;
  add(out, c->getCenter());
  out.insert(out.end(), {c->getRadius(), c->getHeight()});
  return floats(env, out);
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_testkit_Shapes_numPolygons(JNIEnv*, jclass, jlong chart) {
  return static_cast<jint>(from<PoPieChart>(chart)->getPolygons().size());
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_testkit_Shapes_setRepValues(JNIEnv* env, jclass, jlong rep,
                                                                          jfloatArray values) {
  ArrayHelper helper(env);
  from<PoPieChartRep>(rep)->setValues(env->GetArrayLength(values), helper.toNativeArray(values, ArrayHelper::ReadOnly));
}

}  // extern "C"
