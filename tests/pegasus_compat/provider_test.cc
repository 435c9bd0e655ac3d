// A provider written on the interface as providers are, and the handlers of an object manager.

#include <Pegasus/Common/Exception.h>
#include <Pegasus/Provider/CIMInstanceProvider.h>
#include <gtest/gtest.h>

#include <string>

#include "tests/pegasus_compat/support.h"

PEGASUS_USING_PEGASUS;

PEGASUS_NAMESPACE_BEGIN

class RequestNote : public OperationContext::Container {
 public:
  String getName() const override { return String("RequestNote"); }
  Container* clone() const override { return new RequestNote(*this); }
  void destroy() override { delete this; }
};

class WidgetProvider : public CIMInstanceProvider {
 public:
  void initialize(CIMOMHandle& cimom) override { _cimom = cimom; }
  void terminate() override { delete this; }

  void getInstance(const OperationContext&, const CIMObjectPath& instanceReference, const Boolean,
                   const Boolean, const CIMPropertyList&,
                   InstanceResponseHandler& handler) override {
    handler.processing();
    if (instanceReference.getKeyBindings()[0].getValue() != "1") {
      throw CIMObjectNotFoundException(instanceReference.toString());
    }
    handler.deliver(widget("1"));
    handler.complete();
  }

  void enumerateInstances(const OperationContext& context, const CIMObjectPath&, const Boolean,
                          const Boolean, const CIMPropertyList& propertyList,
                          InstanceResponseHandler& handler) override {
    handler.processing();
    CIMInstance first = widget("1");
    first.instanceFilter(true, true, propertyList);
    handler.deliver(first);
    handler.deliver(Array<CIMInstance>(1, widget("2")));
    handler.setContext(context);
    handler.complete();
  }

  void enumerateInstanceNames(const OperationContext&, const CIMObjectPath& classReference,
                              ObjectPathResponseHandler& handler) override {
    handler.processing();
    handler.deliver(classReference);
    handler.deliver(Array<CIMObjectPath>(2, classReference));
    handler.complete();
  }

  void modifyInstance(const OperationContext&, const CIMObjectPath&, const CIMInstance&,
                      const Boolean, const CIMPropertyList&, ResponseHandler& handler) override {
    handler.processing();
    handler.complete();
  }

  void createInstance(const OperationContext&, const CIMObjectPath&, const CIMInstance& instance,
                      ObjectPathResponseHandler& handler) override {
    handler.processing();
    handler.deliver(instance.getPath());
    handler.complete();
  }

  void deleteInstance(const OperationContext&, const CIMObjectPath&, ResponseHandler&) override {
    throw CIMNotSupportedException(String("deleteInstance"));
  }

 private:
  static CIMInstance widget(const char* name) {
    CIMInstance instance(CIMName("VEXOR_Widget"));
    instance.addProperty(CIMProperty(CIMName("Name"), String(name)));
    return instance;
  }

  CIMOMHandle _cimom;
};

PEGASUS_NAMESPACE_END

extern "C" PEGASUS_EXPORT CIMProvider* PegasusCreateProvider(const String& name) {
  return String::equalNoCase(name, String("WidgetProvider")) ? new WidgetProvider : nullptr;
}

namespace {

using pegasus_test::messageOf;

// Writes down what a provider does.
class InstanceRecorder : public InstanceResponseHandler {
 public:
  void processing() override { log += "processing "; }
  void complete() override { log += "complete "; }
  void deliver(const CIMInstance& instance) override {
    log += "one:" + std::to_string(instance.getPropertyCount()) + " ";
  }
  void deliver(const Array<CIMInstance>& instances) override {
    log += "array:" + std::to_string(instances.size()) + " ";
  }
  bool hasNote() const { return getContext().contains(String("RequestNote")); }

  std::string log;
};

class PathRecorder : public ObjectPathResponseHandler {
 public:
  void processing() override { log += "processing "; }
  void complete() override { log += "complete "; }
  void deliver(const CIMObjectPath& path) override {
    log += std::string(path.toString().getCString()) + " ";
  }
  void deliver(const Array<CIMObjectPath>& paths) override {
    log += "array:" + std::to_string(paths.size()) + " ";
  }

  std::string log;
};

class NativeProvider : public testing::Test {
 protected:
  void SetUp() override {
    CIMOMHandle handle;
    CIMProvider* created = PegasusCreateProvider(String("widgetprovider"));
    ASSERT_NE(created, nullptr);
    created->initialize(handle);
    _provider = dynamic_cast<CIMInstanceProvider*>(created);
    ASSERT_NE(_provider, nullptr);
  }
  void TearDown() override { _provider->terminate(); }

  const OperationContext _context;
  const CIMObjectPath _class = CIMObjectPath(String("root:VEXOR_Widget"));
  CIMInstanceProvider* _provider = nullptr;
};

TEST_F(NativeProvider, AnUnknownNameHasNoProvider) {
  EXPECT_EQ(PegasusCreateProvider(String("Other")), nullptr);
}

TEST_F(NativeProvider, DeliversInstances) {
  InstanceRecorder recorder;
  _provider->enumerateInstances(_context, _class, true, true, CIMPropertyList(Array<CIMName>()),
                                recorder);
  EXPECT_EQ(recorder.log, "processing one:0 array:1 complete ");
}

TEST_F(NativeProvider, SendsAContextAlong) {
  InstanceRecorder recorder;
  OperationContext context;
  context.insert(RequestNote());
  _provider->enumerateInstances(context, _class, true, true, CIMPropertyList(), recorder);
  EXPECT_TRUE(recorder.hasNote());
  const InstanceRecorder copy(recorder);
  EXPECT_TRUE(copy.hasNote());
  recorder = InstanceRecorder();
  EXPECT_FALSE(recorder.hasNote());
}

TEST_F(NativeProvider, DeliversPaths) {
  PathRecorder recorder;
  _provider->enumerateInstanceNames(_context, _class, recorder);
  EXPECT_EQ(recorder.log, "processing root:VEXOR_Widget array:2 complete ");
  PathRecorder created;
  _provider->createInstance(_context, _class, CIMInstance(CIMName("VEXOR_Widget")), created);
  EXPECT_EQ(created.log, "processing VEXOR_Widget complete ");
}

TEST_F(NativeProvider, AnswersWithoutResults) {
  PathRecorder recorder;
  _provider->modifyInstance(_context, _class, CIMInstance(CIMName("VEXOR_Widget")), true,
                            CIMPropertyList(), recorder);
  EXPECT_EQ(recorder.log, "processing complete ");
}

TEST_F(NativeProvider, ThrowsItsErrors) {
  InstanceRecorder recorder;
  const CIMObjectPath second(String("root:VEXOR_Widget.Name=\"2\""));
  EXPECT_EQ(messageOf<CIMException>([&] {
              _provider->getInstance(_context, second, true, true, CIMPropertyList(), recorder);
            }),
            "root:VEXOR_Widget.Name=\"2\"");
  EXPECT_EQ(messageOf<CIMNotSupportedException>(
                [&] { _provider->deleteInstance(_context, second, recorder); }),
            "deleteInstance");
  const CIMObjectPath first(String("root:VEXOR_Widget.Name=\"1\""));
  _provider->getInstance(_context, first, true, true, CIMPropertyList(), recorder);
  EXPECT_EQ(recorder.log, "processing processing one:1 complete ");
}

// Compiled without the macros, a source does not see the members that ask for them.
template <class T>
concept HasToUpper = requires(T text) {
  text.toUpper();
};
template <class T>
concept HasErrorCount = requires(T error) {
  error.getErrorCount();
};
template <class T>
concept HasFilter = requires(T instance, CIMPropertyList list) {
  instance.filter(true, true, list);
};
template <class T>
concept HasResponseContext = requires(T handle) {
  handle.getResponseContext();
};
static_assert(!HasToUpper<String>);
static_assert(!HasErrorCount<CIMException>);
static_assert(!HasFilter<CIMInstance>);
static_assert(!HasResponseContext<CIMOMHandle>);

}  // namespace
