/**
 * The binding core of the toolkit's Java interface: the scene-graph classes (nodes, actions,
 * elements, fields, vectors) and the machinery that ties Java objects to native ones.
 *
 * <p>It loads native libraries and binds native methods: on JDK 24 and newer, run with
 * {@code --enable-native-access=com.kestrum.corvel,com.kestrum.tavrel} (on the class path:
 * {@code --enable-native-access=ALL-UNNAMED}) to keep the JVM from warning about it.
 */
// The extension's module, named below, is built after this one.
@SuppressWarnings("module")
module com.kestrum.corvel {
    exports com.kestrum.corvel;
    exports com.kestrum.corvel.actions;
    exports com.kestrum.corvel.elements;
    exports com.kestrum.corvel.fields;
    exports com.kestrum.corvel.misc;
    exports com.kestrum.corvel.nodekits;
    exports com.kestrum.corvel.nodes;

    // The extension checks the components of vector arrays before handing them to native code,
    // which reads the vectors' protected field directly.
    opens com.kestrum.corvel to com.kestrum.tavrel;
}
