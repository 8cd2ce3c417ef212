/**
 * The Tavrel extension of the toolkit: meshes and their data, mesh representations, graphs and
 * charts, and Java nodes, cell filters and elements that the toolkit calls.
 *
 * <p>It loads native libraries and binds native methods: on JDK 24 and newer, run with
 * {@code --enable-native-access=com.kestrum.corvel,com.kestrum.tavrel} (on the class path:
 * {@code --enable-native-access=ALL-UNNAMED}) to keep the JVM from warning about it.
 *
 * <p>The toolkit makes objects of a Java node's, cell filter's or element's type by that type's
 * name alone when it copies a node or reads a file, through the class's constructor without
 * arguments. A module whose package holds such classes opens that package to this module
 * ({@code opens my.nodes to com.kestrum.tavrel;}); without it everything else works the same,
 * and the toolkit cannot make such objects by name.
 */
module com.kestrum.tavrel {
    // The API's classes extend and take the binding core's.
    requires transitive com.kestrum.corvel;

    exports com.kestrum.tavrel;
    exports com.kestrum.tavrel.data;
    exports com.kestrum.tavrel.elements;
    exports com.kestrum.tavrel.fields;
    exports com.kestrum.tavrel.graph;
    exports com.kestrum.tavrel.misc.callbacks;
    exports com.kestrum.tavrel.nodes;
}
