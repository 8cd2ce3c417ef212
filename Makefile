# Build and test entry points. See README.md.
#
#   make demo    builds everything and runs the demo
#   make test    builds everything and runs every test (native and Java)
#   make bench   runs the JMH benchmarks
#   make fuzz    hostile calls to the public API in child JVMs (CALLS=200000 SEED=...)

BUILD_DIR   ?= native/build
MVN         ?= mvn -B -f java/pom.xml
NATIVE_LIBS := $(BUILD_DIR)/lib

.PHONY: all native java demo test native-test java-test bench fuzz clean

all: java

native:
	cmake -S native -B $(BUILD_DIR) -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo
	cmake --build $(BUILD_DIR)

java: native
	$(MVN) -q package -DskipTests

demo: java
	java -cp "java/demo/target/tavrel-demo.jar:java/demo/target/lib/*" com.kestrum.tavrel.demo.Demo

native-test: native
	scripts/run-native-tests $(BUILD_DIR)/bin/native_tests

java-test: native
	$(MVN) verify

test: native-test java-test

# JMH benchmarks (BENCHMARKS.md). BENCH_OPTS sets forks, iterations, ...: -Dbench.forks=1
BENCH_OPTS ?=
bench: native
	$(MVN) -q -Pbench package -DskipTests
	java $(BENCH_OPTS) -cp "java/benchmarks/target/tavrel-benchmarks.jar:java/benchmarks/target/lib/*" \
		com.kestrum.tavrel.benchmarks.RunBenchmarks

# Random misuse of the public API in child JVMs, one after the other (README.md, "Misuse runs"):
# CALLS calls in all, CALLS_PER_JVM per child JVM, seeds from SEED (random when empty). A failed
# child is reported with its seed, its last calls and the JVM's error file. FUZZ_LIBS and
# FUZZ_ENV run it against other native libraries, e.g. a sanitizer build with its runtime
# preloaded.
CALLS         ?= 200000
CALLS_PER_JVM ?= 25000
SEED          ?=
FUZZ_LIBS     ?= $(abspath $(NATIVE_LIBS))
FUZZ_ENV      ?=
FUZZ_CP       := $(abspath java/tavrel/target/test-classes):$(abspath java/tavrel/target/classes):$(abspath java/corvel/target/classes)
fuzz: native
	$(MVN) -q -pl tavrel -am test-compile
	$(FUZZ_ENV) java -cp "$(FUZZ_CP)" -Dkestrum.native.dir=$(FUZZ_LIBS) \
		-Dtavrel.testkit.library=$(FUZZ_LIBS)/libtavrel_testkit.so \
		com.kestrum.tavrel.misuse.MisuseRuns $(CALLS) "$(SEED)" $(CALLS_PER_JVM)

clean:
	rm -rf $(BUILD_DIR)
	$(MVN) -q clean
