// com.kestrum.tavrel.testkit.Nodes: calls of nodes' virtual operations as the
// toolkit makes them (which reach the Java overrides of Java-extended nodes),
// toolkit nodes and cell filters of other classes, and type inspection.
//
// invoke() leaves any Java exception pending and keeps the operation's result
// as text for lastResult(): a native method that returns with an exception
// pending gives Java no result.

#include <jni.h>

#include <Corvel/CallJournal.h>
#include <Corvel/SoAction.h>
#include <Corvel/SoChildList.h>
#include <Corvel/SoField.h>
#include <Corvel/SoGroup.h>
#include <Corvel/SoInput.h>
#include <Corvel/SoNode.h>
#include <CorvelJNI/StringHelper.h>
#include <Tavrel/PoCellFilter.h>
#include <Tavrel/PoNode.h>

#include <cstdint>
#include <cstring>
#include <functional>
#include <map>
#include <string>
#include <thread>

namespace {
template <class T = SoNode>
T* from(jlong handle) {
  return reinterpret_cast<T*>(static_cast<std::intptr_t>(handle));
}
jlong handleOf(const void* p) { return static_cast<jlong>(reinterpret_cast<std::intptr_t>(p)); }

std::string lastResult;
const char* lastFileFormatName = nullptr;

std::string text(bool b) { return b ? "true" : "false"; }
std::string text(const void* p) { return p ? std::to_string(handleOf(p)) : "null"; }
std::string text(const char* s) { return s ? std::string("\"") + s + "\"" : "null"; }

// An action of the base class: its traversal calls doAction.
class GenericAction : public SoAction {};

// A toolkit node of another class than the Java-extensible one.
class ToolkitNode : public PoNode {
 public:
  void doAction(SoAction* action) override { CallJournal::record("ToolkitNode::doAction"); }
  void callback(SoCallbackAction*) override { CallJournal::record("ToolkitNode::callback"); }
  void GLRender(SoGLRenderAction*) override { CallJournal::record("ToolkitNode::GLRender"); }
  void getBoundingBox(SoGetBoundingBoxAction*) override { CallJournal::record("ToolkitNode::getBoundingBox"); }
  void getMatrix(SoGetMatrixAction*) override { CallJournal::record("ToolkitNode::getMatrix"); }
  void handleEvent(SoHandleEventAction*) override { CallJournal::record("ToolkitNode::handleEvent"); }
  void pick(SoPickAction*) override { CallJournal::record("ToolkitNode::pick"); }
  void search(SoSearchAction*) override { CallJournal::record("ToolkitNode::search"); }
  void write(SoWriteAction*) override { CallJournal::record("ToolkitNode::write"); }
  void getPrimitiveCount(SoGetPrimitiveCountAction*) override { CallJournal::record("ToolkitNode::getPrimitiveCount"); }
};

// A toolkit cell filter that accepts the cells of odd index.
class OddCellFilter : public PoCellFilter {
 public:
  SbBool acceptCell(int index, float) const override { return index % 2 != 0; }
  void doAction(SoAction*) override { CallJournal::record("OddCellFilter::doAction"); }
  void write(SoWriteAction* action) override { action->getOutput() += "OddCellFilter\n"; }
};

template <class A, class Made = A>
std::string onAction(SoNode* n, void (SoNode::*op)(A*)) {
  Made action;
  (n->*op)(&action);
  return "";
}

// The node operations by name, each with fixed arguments; the result as text.
const std::map<std::string, std::function<std::string(SoNode*)>>& operations() {
  static const std::map<std::string, std::function<std::string(SoNode*)>> ops = {
      {"touch", [](SoNode* n) { n->touch(); return std::string(); }},
      {"getName", [](SoNode* n) { return text(n->getName().getString()); }},
      {"setName", [](SoNode* n) { n->setName("renamed"); return std::string(); }},
      {"getFileFormatName", [](SoNode* n) { return text(n->getFileFormatName()); }},
      {"readInstance", [](SoNode* n) {
         SoInput in("f 1");
         return text(n->readInstance(&in, 3) != 0);
       }},
      {"getField", [](SoNode* n) { return text(n->getField("f")); }},
      {"getEventIn", [](SoNode* n) { return text(n->getEventIn("f")); }},
      {"getEventOut", [](SoNode* n) { return text(n->getEventOut("f")); }},
      {"setOverride", [](SoNode* n) { n->setOverride(1); return std::string(); }},
      {"isOverride", [](SoNode* n) { return text(n->isOverride() != 0); }},
      {"copy", [](SoNode* n) { return text(n->copy(1)); }},
      {"affectsState", [](SoNode* n) { return text(n->affectsState() != 0); }},
      {"internalAddChild", [](SoNode* n) {
         SoGroup* child = new SoGroup;
         child->ref();
         n->internalAddChild(child);
         child->unref();
         return std::string();
       }},
      {"getAlternateRep", [](SoNode* n) {
         GenericAction action;
         return text(n->getAlternateRep(&action));
       }},
      {"isBoundingBoxIgnoring", [](SoNode* n) { return text(n->isBoundingBoxIgnoring() != 0); }},
      {"doAction", [](SoNode* n) { return onAction<SoAction, GenericAction>(n, &SoNode::doAction); }},
      {"GLRender", [](SoNode* n) { return onAction(n, &SoNode::GLRender); }},
      {"callback", [](SoNode* n) { return onAction(n, &SoNode::callback); }},
      {"getBoundingBox", [](SoNode* n) { return onAction(n, &SoNode::getBoundingBox); }},
      {"getMatrix", [](SoNode* n) { return onAction(n, &SoNode::getMatrix); }},
      {"handleEvent", [](SoNode* n) { return onAction(n, &SoNode::handleEvent); }},
      {"pick", [](SoNode* n) { return onAction(n, &SoNode::pick); }},
      {"rayPick", [](SoNode* n) { return onAction(n, &SoNode::rayPick); }},
      {"search", [](SoNode* n) { return onAction(n, &SoNode::search); }},
      {"write", [](SoNode* n) { return onAction(n, &SoNode::write); }},
      {"getPrimitiveCount", [](SoNode* n) { return onAction(n, &SoNode::getPrimitiveCount); }},
      {"distribute", [](SoNode* n) { return onAction(n, &SoNode::distribute); }},
      {"GLRenderBelowPath", [](SoNode* n) { return onAction(n, &SoNode::GLRenderBelowPath); }},
      {"GLRenderInPath", [](SoNode* n) { return onAction(n, &SoNode::GLRenderInPath); }},
      {"GLRenderOffPath", [](SoNode* n) { return onAction(n, &SoNode::GLRenderOffPath); }},
      {"grabEventsSetup", [](SoNode* n) { n->grabEventsSetup(); return std::string(); }},
      {"grabEventsCleanup", [](SoNode* n) { n->grabEventsCleanup(); return std::string(); }},
      {"getRenderUnitID", [](SoNode* n) { return std::to_string(n->getRenderUnitID()); }},
      {"acceptCell", [](SoNode* n) { return text(static_cast<PoCellFilter*>(n)->acceptCell(4, 0.5f) != 0); }},
  };
  return ops;
}
}  // namespace

extern "C" {

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_testkit_Nodes_invoke(JNIEnv* env, jclass, jlong node,
                                                                    jstring operation) {
  std::string name;
  {
    StringHelper utf(env, operation);
    name = utf.toUTFString();
  }
  auto it = operations().find(name);
  lastResult = it == operations().end() ? "unknown operation" : it->second(from(node));
}

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_testkit_Nodes_lastResult(JNIEnv* env, jclass) {
  return StringHelper::fromNativeString(env, lastResult.c_str());
}

JNIEXPORT jobjectArray JNICALL Java_com_kestrum_tavrel_testkit_Nodes_operationNames(JNIEnv* env, jclass) {
  jclass stringClass = env->FindClass("java/lang/String");
  jobjectArray result = env->NewObjectArray(static_cast<jsize>(operations().size()), stringClass, nullptr);
  env->DeleteLocalRef(stringClass);
  jsize i = 0;
  for (const auto& op : operations()) {
    jstring s = StringHelper::fromNativeString(env, op.first.c_str());
    env->SetObjectArrayElement(result, i++, s);
    env->DeleteLocalRef(s);
  }
  return result;
}

// The node's file format name, as the toolkit sees it; the pointer is kept
// for fileFormatNamePointer() and lastFileFormatNameText().
JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_testkit_Nodes_fileFormatName(JNIEnv* env, jclass, jlong node) {
  lastFileFormatName = from(node)->getFileFormatName();
  if (env->ExceptionCheck()) return nullptr;
  return StringHelper::fromNativeString(env, lastFileFormatName);
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_testkit_Nodes_fileFormatNamePointer(JNIEnv*, jclass) {
  return handleOf(lastFileFormatName);
}

// What the pointer of the last fileFormatName() call reads now.
JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_testkit_Nodes_lastFileFormatNameText(JNIEnv* env, jclass) {
  return StringHelper::fromNativeString(env, lastFileFormatName);
}

// node->internalAddChild(child), as the toolkit does when it reads children.
JNIEXPORT void JNICALL Java_com_kestrum_tavrel_testkit_Nodes_addChild(JNIEnv*, jclass, jlong parent, jlong child) {
  from(parent)->internalAddChild(from(child));
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_testkit_Nodes_numChildren(JNIEnv*, jclass, jlong node) {
  SoChildList* list = from(node)->getChildren();
  return list ? list->getLength() : -1;
}

// Applies an action of the base class (its traversal calls doAction).
JNIEXPORT void JNICALL Java_com_kestrum_tavrel_testkit_Nodes_applyGenericAction(JNIEnv*, jclass, jlong node) {
  GenericAction action;
  action.apply(from(node));
}

// The accepted cells among 0..values.length-1, as a representation asks.
JNIEXPORT jintArray JNICALL Java_com_kestrum_tavrel_testkit_Nodes_selectCells(JNIEnv* env, jclass, jlong filter,
                                                                              jfloatArray values) {
  jsize n = env->GetArrayLength(values);
  std::vector<float> v(static_cast<std::size_t>(n));
  env->GetFloatArrayRegion(values, 0, n, v.data());
  std::vector<int> accepted = PoCellFilter::selectCells(from<PoCellFilter>(filter), n, v.data());
  if (env->ExceptionCheck()) return nullptr;
  jintArray result = env->NewIntArray(static_cast<jsize>(accepted.size()));
  env->SetIntArrayRegion(result, 0, static_cast<jsize>(accepted.size()), accepted.data());
  return result;
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_testkit_Nodes_newToolkitNode(JNIEnv*, jclass) {
  return handleOf(static_cast<PoNode*>(new ToolkitNode));
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_testkit_Nodes_newOddCellFilter(JNIEnv*, jclass) {
  return handleOf(static_cast<PoCellFilter*>(new OddCellFilter));
}

JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_testkit_Nodes_newField(JNIEnv* env, jclass, jstring name) {
  StringHelper utf(env, name);
  return handleOf(new SoField(utf.toUTFString()));
}

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_testkit_Nodes_ref(JNIEnv*, jclass, jlong node) { from(node)->ref(); }

JNIEXPORT void JNICALL Java_com_kestrum_tavrel_testkit_Nodes_unref(JNIEnv*, jclass, jlong node) {
  from(node)->unref();
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_testkit_Nodes_refCount(JNIEnv*, jclass, jlong node) {
  return from(node)->getRefCount();
}

JNIEXPORT jstring JNICALL Java_com_kestrum_tavrel_testkit_Nodes_typeName(JNIEnv* env, jclass, jlong node) {
  return StringHelper::fromNativeString(env, from(node)->getTypeId().getName());
}

JNIEXPORT jboolean JNICALL Java_com_kestrum_tavrel_testkit_Nodes_typeIsBad(JNIEnv*, jclass, jlong node) {
  return from(node)->getTypeId().isBad() ? JNI_TRUE : JNI_FALSE;
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_testkit_Nodes_typeData(JNIEnv*, jclass, jlong node) {
  return from(node)->getTypeId().getData();
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_testkit_Nodes_renderMode(JNIEnv*, jclass, jlong node) {
  return static_cast<jint>(from(node)->getRenderEngineMode().getRenderMode());
}

JNIEXPORT jint JNICALL Java_com_kestrum_tavrel_testkit_Nodes_numFieldDataEntries(JNIEnv*, jclass, jlong node) {
  const SoFieldData* data = from(node)->getFieldData();
  return data ? data->getNumFields() : -1;
}

JNIEXPORT jboolean JNICALL Java_com_kestrum_tavrel_testkit_Nodes_isBuiltIn(JNIEnv*, jclass, jlong node) {
  return from(node)->getIsBuiltIn() ? JNI_TRUE : JNI_FALSE;
}

// A new instance of the named type, made by the toolkit (SoType::createInstance),
// on this thread or on a new native thread; its address, 0 for none.
JNIEXPORT jlong JNICALL Java_com_kestrum_tavrel_testkit_Nodes_createInstance(JNIEnv* env, jclass, jstring typeName,
                                                                             jboolean onNewThread) {
  std::string name;
  {
    StringHelper utf(env, typeName);
    name = utf.toUTFString();
  }
  SoType type = SoType::fromName(name.c_str());
  if (!onNewThread) return handleOf(type.createInstance());
  void* made = nullptr;
  std::thread worker([&] { made = type.createInstance(); });
  worker.join();
  return handleOf(made);
}

}  // extern "C"
