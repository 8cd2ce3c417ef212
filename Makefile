# Build and test entry points. See README.md.
#
#   make demo    builds everything and runs the demo
#   make test    builds everything and runs every test: the native tests and JUnit (JDK 17), the
#                Javadoc check, the jars' sizes, the jars' module descriptors, the example project against the
#                installed jars (on JDK 17 and the newest JDK: no native-access warning), both suites
#                again against a build with AddressSanitizer and UBSan, and JUnit on the
#                newest JDK of version 21 or newer on the machine, if there is one
#   make soak    runs each data path 1,000,000 times and fails when memory keeps growing
#   make bench   runs the JMH benchmarks on JDK 17 and the newest JDK (22 or newer), writes their
#                results into benchmarks/ and BENCHMARKS.md and draws the plots (needs gnuplot)
#   make bench-quick  the same, shorter, into java/benchmarks/target/bench-quick (about seven minutes)
#   make fuzz    hostile calls to the public API in child JVMs (CALLS=200000 SEED=...)
#   make install builds the jars (natives, sources, Javadoc) and installs them into the local
#                Maven repository
#   make example runs the example project (examples/) against the installed jars
#   make check-modules checks the jars' module descriptors (exports, opens) and starts them on
#                the module path
#   make coverage runs the JUnit suite against a build of the product with gcov instrumentation
#                (native/build-cov) and prints its function and line coverage (not part of test)
#   make release builds the artifacts to publish (each jar with its stripped natives, its sources,
#                Javadoc and natives-debug jars) without installing them, and checks the jar sizes
#   make jar-sizes prints the sizes of the jars built and fails when one misses its goal
#   make repro-check builds the artifacts of the last commit twice, in two fresh clones in
#                different folders, and fails unless they are byte for byte the same

BUILD_DIR      ?= native/build
ASAN_BUILD_DIR ?= native/build-asan
COV_BUILD_DIR  ?= native/build-cov
# The time recorded in the jars' entries: the last commit's, so that a commit always gives the
# same jars (the pom's fixed default without git).
OUTPUT_TIMESTAMP ?= $(shell TZ=UTC0 git log -1 --format=%cd --date=format-local:%Y-%m-%dT%H:%M:%SZ 2>/dev/null)
MVN            ?= mvn -B -f java/pom.xml $(if $(OUTPUT_TIMESTAMP),-Dproject.build.outputTimestamp=$(OUTPUT_TIMESTAMP))
NATIVE_LIBS    := $(BUILD_DIR)/lib

# The sanitizer runtime, preloaded into the test JVMs that load the sanitizer build (the
# native test program links it itself).
ASAN_RUNTIME ?= $(shell gcc -print-file-name=libasan.so)
# The JVM handles its own signals (SIGSEGV is part of its normal work); any report aborts the
# process; the sleep lets a report written into a pipe reach the output first. The same options
# are in the profile "sanitizers" of java/tavrel/pom.xml.
SANITIZER_ENV := ASAN_OPTIONS=handle_segv=0:allow_user_segv_handler=1:detect_leaks=0:abort_on_error=1:sleep_before_dying=1 \
                 UBSAN_OPTIONS=halt_on_error=1:abort_on_error=1:print_stacktrace=1

# The Java runtime (home folder) that JUnit also runs on; empty skips that run.
NEWEST_JDK ?= $(shell scripts/newest-jdk 21)
# A JDK of version 22 or newer (with javac): the benchmarks' comparison with the foreign-function
# API is compiled (also by `make test`, so that it cannot rot) and run with it; empty skips it.
PANAMA_JDK ?= $(shell scripts/newest-jdk 22)
PANAMA_OPTS := $(if $(wildcard $(PANAMA_JDK)/bin/javac),-Dpanama.jdk=$(PANAMA_JDK))

.PHONY: all native native-asan java demo install example example-run check-modules check-modules-run \
	test native-test java-test native-test-asan java-test-asan java-test-newest-jdk soak bench bench-quick bench-build fuzz clean \
	native-cov coverage
# The test runs share Maven's output folders: one at a time.
.NOTPARALLEL:

all: java

native:
	cmake -S native -B $(BUILD_DIR) -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo
	cmake --build $(BUILD_DIR)

# Every native library and the native test program with -fsanitize=address,undefined; unoptimised,
# which compiles four times faster than -O2 with the sanitizers and hides no faulty access.
native-asan:
	cmake -S native -B $(ASAN_BUILD_DIR) -G Ninja -DCMAKE_BUILD_TYPE=Debug -DTAVREL_SANITIZE=ON
	cmake --build $(ASAN_BUILD_DIR)

# The product with gcov instrumentation (--coverage), unoptimised, with the stand-ins and the test
# natives the suite loads, in a folder of its own that no jar and no other target reads.
native-cov:
	cmake -S native -B $(COV_BUILD_DIR) -G Ninja -DCMAKE_BUILD_TYPE=Debug -DTAVREL_COVERAGE=ON
	cmake --build $(COV_BUILD_DIR) --target com.kestrum.tavrel tavrel_testkit tavrel_jnicalls

java: native
	$(MVN) -q package -DskipTests

# No JVM started here may warn about native access (JDK 24 and newer do without the option).
NO_NATIVE_ACCESS_WARNINGS := scripts/without-native-access-warnings

demo: java
	$(NO_NATIVE_ACCESS_WARNINGS) java --enable-native-access=ALL-UNNAMED -cp "java/demo/target/tavrel-demo.jar:java/demo/target/lib/*" com.kestrum.tavrel.demo.Demo

# The jars of com.kestrum.tavrel and of the binding core's Java side, each with its natives, a
# sources jar and a Javadoc jar, into the local Maven repository (Maven runs the native build too).
install:
	$(MVN) install -DskipTests

# The example project, built against the installed jars by their coordinates only and run on the
# class path and on the module path, by the java on the PATH and by the newest JDK's (when there
# is one): a native-access warning in its output fails the target.
EXAMPLE_MVN ?= mvn -B -q -f examples/pom.xml
example: install example-run
example-run:
	$(NO_NATIVE_ACCESS_WARNINGS) $(EXAMPLE_MVN) verify
	$(if $(NEWEST_JDK),$(NO_NATIVE_ACCESS_WARNINGS) $(EXAMPLE_MVN) verify -Dexample.java=$(NEWEST_JDK)/bin/java)

# The module descriptors of the jars in java/*/target: each exports exactly its API packages
# (jar --describe-module); then the two modules on the module path, by the java on the PATH and
# by the newest JDK's.
check-modules: java check-modules-run
check-modules-run:
	scripts/check-modules java $(if $(NEWEST_JDK),$(NEWEST_JDK)/bin/java)

# The artifacts to publish, built as `make install` builds them, but not installed: per jar module
# (java/corvel, java/tavrel) the jar with its natives stripped, the sources jar, the Javadoc jar
# and the natives-debug jar with the natives' debug files (also in native/build/debug). The Java
# side is built afresh: a jar left from an earlier commit would keep that commit's time.
.PHONY: release jar-sizes repro-check
release: native
	$(MVN) -q clean verify -DskipTests
	@$(MAKE) --no-print-directory jar-sizes

# The sizes of the jars of `make release` (or `make install`); the main jars have a size goal
# (bytes, or K and M for 1000 and 1,000,000), missed or missing fails.
PROJECT_VERSION := $(shell sed -n 's|^  <version>\(.*\)</version>$$|\1|p' java/pom.xml | head -1)
TAVREL_JAR_MAX  ?= 2M
CORVEL_JAR_MAX  ?= 1M
jar-sizes:
	@scripts/jar-sizes \
		java/tavrel/target/tavrel-$(PROJECT_VERSION).jar=$(TAVREL_JAR_MAX) \
		java/corvel/target/corvel-standin-$(PROJECT_VERSION).jar=$(CORVEL_JAR_MAX) \
		$(foreach kind,sources javadoc natives-debug, \
			java/tavrel/target/tavrel-$(PROJECT_VERSION)-$(kind).jar \
			java/corvel/target/corvel-standin-$(PROJECT_VERSION)-$(kind).jar)

# `make release` of the last commit in two fresh clones in different folders, one after the
# other, then the SHA-256 of each artifact of both (scripts/repro-check; REPRO_DIR holds
# the clones, a new folder under /tmp by default). Without the compiler cache, so that both
# builds compile every source in their own folder.
repro-check:
	scripts/repro-check

native-test: native
	scripts/run-native-tests $(BUILD_DIR)/bin/native_tests

# The JUnit suite, the Javadoc check (doclint, no warning allowed), the installation of the
# jars that the example project then uses, and the benchmarks compiled (not run), so that they
# cannot rot.
java-test: native
	$(MVN) -Pbench $(PANAMA_OPTS) install

native-test-asan: native-asan
	$(SANITIZER_ENV) scripts/run-native-tests $(ASAN_BUILD_DIR)/bin/native_tests

java-test-asan: native-asan
	@test -f "$(ASAN_RUNTIME)" || { echo "no AddressSanitizer runtime: gcc -print-file-name=libasan.so" >&2; exit 1; }
	$(MVN) -pl tavrel -am test -Psanitizers -Dsanitizer.runtime=$(ASAN_RUNTIME) \
		-Dtest.native.dir=$(abspath $(ASAN_BUILD_DIR))/lib

java-test-newest-jdk: native
	@if [ -z "$(NEWEST_JDK)" ]; then \
		echo "JUnit on a newer JDK: no Java runtime of version 21 or newer found, skipped"; \
	else \
		echo "JUnit on $(NEWEST_JDK)"; \
		$(MVN) -pl tavrel -am test -Djvm=$(NEWEST_JDK)/bin/java -Dtest.reports.suffix=-newest-jdk; \
	fi

# The JUnit suite against native/build-cov (the counts of earlier runs removed first), then the
# product's coverage: exported JNI functions run (of the finished library's list) and lines run
# per folder, with every function never run; the lines never run go to native/build-cov/coverage-gaps.txt.
# COVERAGE_MIN_LINES: the line coverage below which the target fails (an unrun function always fails it).
COVERAGE_MIN_LINES ?= 98
coverage: native-cov
	find $(COV_BUILD_DIR) -name '*.gcda' -delete
	$(MVN) -pl tavrel -am test -Dtest.native.dir=$(abspath $(COV_BUILD_DIR))/lib \
		-Dtest.reports.suffix=-coverage; tests=$$?; \
	scripts/coverage $(COV_BUILD_DIR) java/tavrel/src/test/resources/expected-jni-symbols.txt \
		--min-lines $(COVERAGE_MIN_LINES) && exit $$tests

test: native-test java-test jar-sizes check-modules-run example-run native-test-asan java-test-asan java-test-newest-jdk

# Each data path 1,000,000 times in one JVM (SOAK_OPTS: -Dsoak.iterations=N, -Dsoak.paths=a,b).
# Every full collection compacts the whole heap, so that the heap measured after one holds live
# objects only (the soak refuses to run otherwise; see Soak.heapMeasureProblem).
SOAK_OPTS ?=
soak: native
	$(MVN) -q -Psoak package -DskipTests
	java -Xms256m -Xmx256m -XX:+AlwaysPreTouch -XX:+UseSerialGC -XX:MarkSweepAlwaysCompactCount=1 \
		--enable-native-access=ALL-UNNAMED \
		-Dkestrum.native.dir=$(abspath $(NATIVE_LIBS)) $(SOAK_OPTS) \
		-cp "java/soak/target/tavrel-soak.jar:java/soak/target/lib/*" com.kestrum.tavrel.soak.Soak

# JMH benchmarks (BENCHMARKS.md): each hot path against its floor in the test library, on JDK 17
# and on PANAMA_JDK. BENCH_OPTS adds JVM options, e.g. -Dbench.include=ThinGetter or
# -Dbench.forks=1. `make bench` writes benchmarks/ and BENCHMARKS.md (about 25 minutes, and some
# 7 more for the bulk benchmarks; needs gnuplot: apt-get install gnuplot-nox); `make bench-quick`
# prints the ratios (about seven).
BENCH_OPTS ?=
bench-build: native
	$(MVN) -q -Pbench $(PANAMA_OPTS) package -DskipTests

bench: bench-build
	scripts/bench full "$(if $(PANAMA_OPTS),$(PANAMA_JDK))" $(BENCH_OPTS)

bench-quick: bench-build
	scripts/bench quick "$(if $(PANAMA_OPTS),$(PANAMA_JDK))" $(BENCH_OPTS)

# Random misuse of the public API in child JVMs, one after the other (docs/testing.md, "Misuse runs"):
# CALLS calls in all, CALLS_PER_JVM per child JVM, seeds from SEED (random when empty). A failed
# child is reported with its seed, its last calls and the JVM's error file. It ends with the
# figures (calls, children, crashes, sanitizer reports, JNI warnings, hangs, unclear exceptions,
# classes and methods reached) and fails when a public class had no successful call. FUZZ_LIBS and
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
	$(FUZZ_ENV) java --enable-native-access=ALL-UNNAMED -cp "$(FUZZ_CP)" -Dkestrum.native.dir=$(FUZZ_LIBS) \
		-Dtavrel.testkit.library=$(FUZZ_LIBS)/libtavrel_testkit.so \
		com.kestrum.tavrel.misuse.MisuseRuns $(CALLS) "$(SEED)" $(CALLS_PER_JVM)

clean:
	rm -rf $(BUILD_DIR) $(ASAN_BUILD_DIR) $(COV_BUILD_DIR)
	$(MVN) -q clean
	$(EXAMPLE_MVN) clean
