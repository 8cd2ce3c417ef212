# Build and test entry points. See README.md.
#
#   make demo    builds everything and runs the demo
#   make test    builds everything and runs every test (native and Java)
#   make bench   runs the JMH benchmarks

BUILD_DIR   ?= native/build
MVN         ?= mvn -B -f java/pom.xml
NATIVE_LIBS := $(BUILD_DIR)/lib

.PHONY: all native java demo test native-test java-test bench clean

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

clean:
	rm -rf $(BUILD_DIR)
	$(MVN) -q clean
