// Node kits: nodes made of named parts. Each kit class has a catalog that
// lists its parts; the catalog belongs to the class and lives for the process.
#pragma once

#include <Corvel/StandIn.h>

#include <Corvel/SoNode.h>
#include <string>
#include <vector>

class SoNodekitCatalog {
 public:
  SoNodekitCatalog(SoType owner, std::vector<std::string> partNames)
      : owner(owner), parts(std::move(partNames)) {}
  TAVREL_STANDIN_ONLY SoType getOwner() const { return owner; }
  TAVREL_STANDIN_ONLY int getNumEntries() const { return static_cast<int>(parts.size()); }
  SbName getName(int index) const { return SbName(parts[index]); }
  TAVREL_STANDIN_ONLY const std::vector<std::string>& partNames() const { return parts; }

 private:
  SoType owner;
  std::vector<std::string> parts;
};

#define SO_KIT_HEADER(className)                                 \
  SO_NODE_HEADER(className)                                      \
  static const SoNodekitCatalog* getClassNodekitCatalog();      \
  static const SoNodekitCatalog* getClassNodekitCatalogUnjournaled(); \
  const SoNodekitCatalog* getNodekitCatalog() const override;

// The catalog holds the parent's parts followed by the class's own ones,
// given as a brace list of names.
#define SO__KIT_CATALOG(className, parentName, ...)                              \
  const SoNodekitCatalog* className::getClassNodekitCatalog() {                  \
    CallJournal::record(#className "::getClassNodekitCatalog");                  \
    return getClassNodekitCatalogUnjournaled();                                  \
  }                                                                              \
  const SoNodekitCatalog* className::getClassNodekitCatalogUnjournaled() {       \
    static const SoNodekitCatalog* catalog = [] {                                \
      std::vector<std::string> names =                                          \
          parentName::getClassNodekitCatalogUnjournaled()->partNames();         \
      for (const char* n : std::initializer_list<const char*> __VA_ARGS__)       \
        names.emplace_back(n);                                                   \
      return new SoNodekitCatalog(getClassTypeIdUnjournaled(), names);           \
    }();                                                                         \
    return catalog;                                                              \
  }                                                                              \
  const SoNodekitCatalog* className::getNodekitCatalog() const {                 \
    return getClassNodekitCatalogUnjournaled();                                  \
  }

#define SO_KIT_SOURCE(className, parentName, typeName, ...)  \
  SO_NODE_SOURCE(className, parentName, typeName)             \
  SO__KIT_CATALOG(className, parentName, __VA_ARGS__)

#define SO_KIT_ABSTRACT_SOURCE(className, parentName, typeName, ...) \
  SO_NODE_ABSTRACT_SOURCE(className, parentName, typeName)           \
  SO__KIT_CATALOG(className, parentName, __VA_ARGS__)

class SoBaseKit : public SoNode {
  SO_NODE_HEADER(SoBaseKit)

 public:
  static const SoNodekitCatalog* getClassNodekitCatalog();
  TAVREL_STANDIN_ONLY static const SoNodekitCatalog* getClassNodekitCatalogUnjournaled();
  TAVREL_STANDIN_ONLY virtual const SoNodekitCatalog* getNodekitCatalog() const;

 protected:
  SoBaseKit();
  ~SoBaseKit() override;
};
