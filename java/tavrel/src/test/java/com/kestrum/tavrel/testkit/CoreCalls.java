package com.kestrum.tavrel.testkit;

import java.util.ArrayList;
import java.util.Collection;
import java.util.List;

/**
 * Expected JNI call sequences ({@link JniCalls}), built from the library's own calls and the calls
 * that the binding core makes for an operation the library asks of it. The binding core's
 * calls are those of its stand-in (native/platform/corvel); each operation has one method here,
 * so that a test states which operation the library uses, not how the binding core works.
 */
public final class CoreCalls {
    /** {@code JNIEnvHelper::getEnv()} on a thread the JVM knows: one environment lookup. */
    public static final String GET_ENV = "GetEnv(0x10008) -> 0";

    private CoreCalls() {}

    /** The calls, strings and lists of strings, in order, as one list. */
    public static List<String> sequence(Object... parts) {
        List<String> out = new ArrayList<>();
        for (Object p : parts) {
            if (p instanceof Collection<?> c) {
                for (Object o : c) {
                    out.add((String) o);
                }
            } else {
                out.add((String) p);
            }
        }
        return out;
    }

    /** A toolkit call in a recording with the toolkit's calls ({@link JniCalls#recordWithToolkit}). */
    public static String toolkit(String journalLine) {
        return JniCalls.TOOLKIT + journalLine;
    }

    /**
     * The calls, with each toolkit call shortened to {@code "toolkit: "} and its function's
     * qualified name ({@code "toolkit: PbMesh::addValuesSet"}), for rows that hold where the
     * toolkit is called rather than what it receives.
     */
    public static List<String> toolkitByName(List<String> calls) {
        List<String> out = new ArrayList<>(calls.size());
        for (String c : calls) {
            int paren = c.indexOf('(');
            out.add(c.startsWith(JniCalls.TOOLKIT) && paren > 0 ? c.substring(0, paren) : c);
        }
        return out;
    }

    /** The call n times. */
    public static List<String> times(int n, Object... calls) {
        List<String> one = sequence(calls);
        List<String> out = new ArrayList<>();
        for (int i = 0; i < n; i++) {
            out.addAll(one);
        }
        return out;
    }

    /**
     * Before an {@code ArrayHelper} that converted an array {@code ReadWrite} copies back: its
     * check for a pending exception (set aside during the copy).
     */
    public static final String COPY_BACK_CHECK = "ExceptionCheck() -> false";

    /** {@code ArrayHelper::toNativeArray} of a Java array of the kind ("Float", "Int", ...) and length. */
    public static List<String> array(String kind, int length) {
        return List.of("GetArrayLength() -> " + length, "Get" + kind + "ArrayRegion(0, " + length + ")");
    }

    /** The copy back of a {@code ReadWrite} array when its {@code ArrayHelper} goes. */
    public static String copyBack(String kind, int length) {
        return "Set" + kind + "ArrayRegion(0, " + length + ")";
    }

    /**
     * {@code ObjectHelper::getManagedObject(env, className, address)} for a non-zero address, once
     * the class of that name has been resolved (by an earlier call): one Java call with the class.
     */
    public static List<String> managedObject(String dottedClassName) {
        return List.of("CallStaticObjectMethodV(Lcom/kestrum/corvel/misc/ManagedObjects;, "
                        + "getManagedObject(Ljava/lang/Class;J)Ljava/lang/Object;)",
                "ExceptionCheck() -> false");
    }

    /**
     * {@code ObjectHelper::getManagedObject(env, className, address)} for the address of a
     * registered Java peer of that class: found through the native side's weak reference, with
     * no call into Java.
     */
    public static List<String> registeredPeer(String dottedClassName) {
        return List.of("NewLocalRef()", "IsInstanceOf(L" + dottedClassName.replace('.', '/') + ";) -> true");
    }

    /** {@code StringHelper::fromNativeString} of ASCII text: a new Java string. */
    public static List<String> newString(String ascii) {
        return List.of("NewStringUTF(\"" + ascii + "\")");
    }

    /** A {@code StringHelper} reading a Java string of that length (for UTF-8 or wide text). */
    public static List<String> readString(int length) {
        return length == 0 ? List.of("GetStringLength() -> 0")
                : List.of("GetStringLength() -> " + length, "GetStringRegion(0, " + length + ")");
    }

    /**
     * A vector-object array of n vectors of the class (a signature) read into a temporary native
     * array: element 0's class and field looked up once, then each vector's floats.
     */
    public static List<String> vectorArray(int n, String vectorClass) {
        List<String> calls = new ArrayList<>(List.of("GetArrayLength() -> " + n, "GetObjectArrayElement(0)",
                "GetObjectClass() -> " + vectorClass, "GetFieldID(" + vectorClass + ", \"array\", \"[F\")",
                "DeleteLocalRef()", "DeleteLocalRef()"));
        for (int i = 0; i < n; i++) {
            calls.addAll(List.of("GetObjectArrayElement(" + i + ")", "GetObjectField(array)", "GetFloatArrayElements()",
                    "ReleaseFloatArrayElements(JNI_ABORT)", "DeleteLocalRef()", "DeleteLocalRef()"));
        }
        return calls;
    }

    /** A {@code StringArrayHelper} reading a Java String[] of non-null elements of those lengths. */
    public static List<String> stringArray(int... lengths) {
        List<String> calls = new ArrayList<>(List.of("GetArrayLength() -> " + lengths.length));
        for (int i = 0; i < lengths.length; i++) {
            calls.add("GetObjectArrayElement(" + i + ")");
            calls.addAll(readString(lengths[i]));
            calls.add("DeleteLocalRef()");
        }
        return calls;
    }

    /** {@code ObjectHelper::getEnumValue} of a constant of the enumeration class (a signature). */
    public static List<String> enumValue(String enumClass, int value) {
        return List.of("GetObjectClass() -> " + enumClass, "GetMethodID(" + enumClass + ", \"getValue\", \"()I\")",
                "DeleteLocalRef()", "CallIntMethodV(getValue()I) -> " + value);
    }

    /** {@code ExceptionHelper::throwIllegalArgException} with the message and a pending cause. */
    public static List<String> throwIllegalArgument(String message) {
        return List.of("ExceptionClear()",
                "FindClass(\"java/lang/IllegalArgumentException\") -> Ljava/lang/IllegalArgumentException;",
                "GetMethodID(Ljava/lang/IllegalArgumentException;, \"<init>\", "
                        + "\"(Ljava/lang/String;Ljava/lang/Throwable;)V\")",
                "NewStringUTF(\"" + message + "\")",
                "NewObjectV(Ljava/lang/IllegalArgumentException;, <init>(Ljava/lang/String;Ljava/lang/Throwable;)V)",
                "Throw() -> 0",
                "DeleteLocalRef()",
                "DeleteLocalRef()",
                "DeleteLocalRef()");
    }
}
