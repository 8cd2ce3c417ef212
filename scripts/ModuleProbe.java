import java.lang.reflect.Field;

/**
 * Run by scripts/check-modules with the jars on the module path: checks that the modules are
 * named ones, that the extension reads the vector classes' fields (without that, the checks of
 * vector arrays before native calls are left out), and that the native libraries load from
 * inside the jars.
 */
public final class ModuleProbe {
    private ModuleProbe() {}

    public static void main(String[] args) throws Exception {
        Class<?> product = Class.forName("com.kestrum.tavrel.PoTavrel");
        Class<?> vectors = Class.forName("com.kestrum.tavrel.internal.VectorArrays");
        Class<?> core = Class.forName("com.kestrum.corvel.SbVec3f");
        require(product.getModule().isNamed() && core.getModule().isNamed()
                && product.getModule().getDescriptor() != null && !product.getModule().getDescriptor().isAutomatic(),
                "the jars are explicit modules on the module path");
        Field readable = vectors.getDeclaredField("FIELDS_READABLE");
        readable.setAccessible(true);
        require(readable.getBoolean(null), "com.kestrum.tavrel reads the fields of com.kestrum.corvel's vectors");
        String name = (String) product.getMethod("getProductName").invoke(null);
        require(name != null && !name.isEmpty(), "the native libraries load from the jars");
        System.out.println("check-modules: on the module path, " + name + " loads from the jars and checks vector arrays");
    }

    private static void require(boolean condition, String what) {
        if (!condition) {
            throw new IllegalStateException("check-modules: not so: " + what);
        }
    }
}
