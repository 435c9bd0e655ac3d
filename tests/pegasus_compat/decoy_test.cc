// Our library beside another one that exports the same classes under their plain names. This
// program is linked with neither, so that it decides what is loaded and in which order.

#include <dlfcn.h>
#include <gtest/gtest.h>

#include <string>

namespace {

const char* const kPlainString = "_ZN7Pegasus6StringC1EPKc";
const char* const kExpected =
    "//h/root:VEXOR_A.Text=\"ab\" 2 6 2 already exists: property \"TEXT\" CIM_ERR_NOT_FOUND: B 33";

void* load(const char* library) {
  void* handle = dlopen(library, RTLD_NOW | RTLD_GLOBAL);
  EXPECT_NE(handle, nullptr) << dlerror();
  return handle;
}

bool isLoaded(const char* library) {
  void* handle = dlopen(library, RTLD_NOW | RTLD_NOLOAD);
  if (handle != nullptr) dlclose(handle);
  return handle != nullptr;
}

template <class Function>
Function* function(void* library, const char* name) {
  auto* found = reinterpret_cast<Function*>(dlsym(library, name));
  EXPECT_NE(found, nullptr) << name;
  return found;
}

std::string description(void* plugin) {
  char text[512] = {};
  function<void(char*, unsigned)>(plugin, "compat_plugin_describe")(text, sizeof(text));
  return text;
}

TEST(Decoy, StandsInForSourcesOfThePlainNames) {
  void* decoy = load(PEGASUS_DECOY);
  EXPECT_NE(dlsym(RTLD_DEFAULT, kPlainString), nullptr);
  auto* calls = function<int()>(decoy, "pegasus_decoy_calls");
  const int before = calls();
  function<void()>(decoy, "pegasus_decoy_use")();
  EXPECT_EQ(calls(), before + 2);  // constructed and destroyed
  dlclose(decoy);
}

TEST(Decoy, LoadedFirstIsNeverCalledByOurClasses) {
  void* decoy = load(PEGASUS_DECOY);
  auto* calls = function<int()>(decoy, "pegasus_decoy_calls");
  const int before = calls();
  ASSERT_FALSE(isLoaded(PEGASUS_LIBRARY));
  void* plugin = load(PEGASUS_PLUGIN);
  ASSERT_TRUE(isLoaded(PEGASUS_LIBRARY));
  EXPECT_EQ(description(plugin), kExpected);
  dlclose(plugin);
  EXPECT_EQ(calls(), before);
  dlclose(decoy);
}

TEST(Decoy, LoadedLastIsNeverCalledByOurClasses) {
  void* plugin = load(PEGASUS_PLUGIN);
  void* decoy = load(PEGASUS_DECOY);
  auto* calls = function<int()>(decoy, "pegasus_decoy_calls");
  const int before = calls();
  EXPECT_EQ(description(plugin), kExpected);
  EXPECT_EQ(calls(), before);
  dlclose(plugin);
  dlclose(decoy);
}

TEST(Unloading, TakesTheLibraryOutOfTheProcess) {
  for (int round = 0; round < 3; ++round) {
    void* plugin = load(PEGASUS_PLUGIN);
    EXPECT_EQ(description(plugin), kExpected);
    dlclose(plugin);
    EXPECT_FALSE(isLoaded(PEGASUS_PLUGIN));
    EXPECT_FALSE(isLoaded(PEGASUS_LIBRARY));
  }
}

// The sanitizers look for what was left behind.
TEST(Unloading, ReleasesAClassSourceThatWasLeftInstalled) {
  void* plugin = load(PEGASUS_PLUGIN);
  function<void()>(plugin, "compat_plugin_install_source")();
  dlclose(plugin);
  EXPECT_FALSE(isLoaded(PEGASUS_LIBRARY));
}

}  // namespace
