#include <Corvel/CallJournal.h>
#include <Corvel/SoType.h>

#include <atomic>
#include <cstdio>
#include <cstdlib>
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

// Types are made while classes register and read on every traversal (a
// parent, a creation method): an entry never changes once made, so readers
// take no lock. Entries live in blocks that never move; a block is published
// before the count that shows its entries.
constexpr unsigned int kBlockBits = 10;
constexpr unsigned int kBlockSize = 1u << kBlockBits;
constexpr unsigned int kMaxBlocks = 256;

struct TypeTable {
  std::mutex mutex;  // the writers'
  std::atomic<TypeEntry*> blocks[kMaxBlocks] = {};
  std::atomic<unsigned int> count{0};
  std::map<std::string, unsigned int> byName;

  TypeTable() { add(TypeEntry{"", 0, nullptr, 0}); }  // entry 0: the bad type

  unsigned int add(TypeEntry entry) {
    const unsigned int key = count.load(std::memory_order_relaxed);
    const unsigned int block = key >> kBlockBits;
    if (block == kMaxBlocks) {
      std::fprintf(stderr, "toolkit: more than %u types\n", kMaxBlocks * kBlockSize);
      std::abort();
    }
    if (blocks[block].load(std::memory_order_relaxed) == nullptr)
      blocks[block].store(new TypeEntry[kBlockSize], std::memory_order_relaxed);
    blocks[block].load(std::memory_order_relaxed)[key & (kBlockSize - 1)] = std::move(entry);
    count.store(key + 1, std::memory_order_release);
    return key;
  }
};

TypeTable& table() {
  static TypeTable* t = new TypeTable;  // never destroyed: types outlive static objects
  return *t;
}

const TypeEntry& entryOf(unsigned int key) {
  TypeTable& t = table();
  if (key >= t.count.load(std::memory_order_acquire)) key = 0;
  return t.blocks[key >> kBlockBits].load(std::memory_order_relaxed)[key & (kBlockSize - 1)];
}
}  // namespace

SoType SoType::createType(SoType parent, const SbName& name, CreateMethod method, short data) {
  CallJournal::record("SoType::createType", parent, name, journalFn(method), data);
  TypeTable& t = table();
  std::lock_guard<std::mutex> lock(t.mutex);
  const unsigned int key = t.add(TypeEntry{name.getString(), parent.storage, method, data});
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
  return static_cast<int>(t.count.load(std::memory_order_acquire)) - 1;
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
