#include <Corvel/CallJournal.h>
#include <Corvel/SoType.h>

#include <map>
#include <mutex>
#include <string>
#include <vector>

namespace {
struct TypeEntry {
  std::string name;
  unsigned int parent;
  SoType::CreateMethod create;
  short data;
};

struct TypeTable {
  std::mutex mutex;
  std::vector<TypeEntry> entries{TypeEntry{"", 0, nullptr, 0}};  // entry 0: the bad type
  std::map<std::string, unsigned int> byName;
};

TypeTable& table() {
  static TypeTable* t = new TypeTable;  // never destroyed: types outlive static objects
  return *t;
}

TypeEntry entryOf(unsigned int key) {
  TypeTable& t = table();
  std::lock_guard<std::mutex> lock(t.mutex);
  return key < t.entries.size() ? t.entries[key] : t.entries[0];
}
}  // namespace

SoType SoType::createType(SoType parent, const SbName& name, CreateMethod method, short data) {
  CallJournal::record("SoType::createType", parent, name, journalFn(method), data);
  TypeTable& t = table();
  std::lock_guard<std::mutex> lock(t.mutex);
  unsigned int key = static_cast<unsigned int>(t.entries.size());
  t.entries.push_back(TypeEntry{name.getString(), parent.storage, method, data});
  t.byName[name.getString()] = key;
  return SoType(key);
}

SoType SoType::fromName(const SbName& name) {
  CallJournal::record("SoType::fromName", name);
  TypeTable& t = table();
  std::lock_guard<std::mutex> lock(t.mutex);
  auto it = t.byName.find(name.getString());
  return it == t.byName.end() ? SoType() : SoType(it->second);
}

int SoType::getNumTypes() {
  TypeTable& t = table();
  std::lock_guard<std::mutex> lock(t.mutex);
  return static_cast<int>(t.entries.size()) - 1;
}

SbName SoType::getName() const { return SbName(entryOf(storage).name); }
SoType SoType::getParent() const { return SoType(entryOf(storage).parent); }
short SoType::getData() const { return entryOf(storage).data; }
bool SoType::canCreateInstance() const { return entryOf(storage).create != nullptr; }

bool SoType::isDerivedFrom(SoType t) const {
  if (t.isBad()) return false;
  for (SoType cur = *this; !cur.isBad(); cur = cur.getParent())
    if (cur == t) return true;
  return false;
}

void* SoType::createInstance() const {
  CreateMethod create = entryOf(storage).create;
  if (create == nullptr) return nullptr;
  SoType self = *this;
  return create(&self);
}

void journalFormat(std::string& out, const SoType& t) {
  if (t.isBad()) {
    out += "<bad type>";
    return;
  }
  out += '<';
  out += t.getName().getString();
  out += '>';
}
