package com.kestrum.corvel.actions;

import com.kestrum.corvel.misc.Arguments;
import java.io.IOException;
import java.nio.charset.StandardCharsets;
import java.nio.file.Files;
import java.nio.file.Path;

/**
 * Renders the scene graph. The toolkit keeps what the graph nodes it reaches draw (lines, filled
 * polygons and texts; each {@link #apply} starts anew), which {@link #toSvg} gives as an SVG
 * document: render a group to picture several nodes together.
 */
public class SoGLRenderAction extends SoAction {
    static {
        registerViews("com.kestrum.corvel.actions.SoGLRenderAction", SoGLRenderAction::new);
    }

    /** A new action, owned by this object. */
    public SoGLRenderAction() {
        super("SoGLRenderAction");
    }

    /**
     * An action made by this class's subclasses ({@link SoAction#SoAction(String)}).
     *
     * @param javaClassName the name of the Java class that makes the object
     */
    protected SoGLRenderAction(String javaClassName) {
        super(javaClassName);
    }

    /**
     * A view of a native action owned elsewhere.
     *
     * @param handle the address of the native object
     */
    protected SoGLRenderAction(long handle) {
        super(handle);
    }

    /**
     * What the graph nodes rendered so far drew, as an SVG document.
     *
     * @return what the graph nodes rendered so far drew, as an SVG document
     */
    public String toSvg() {
        return toSvgNative(handle());
    }

    /**
     * Writes {@link #toSvg} into the file (replacing it) as UTF-8.
     *
     * @param file the file to write
     * @throws java.io.IOException when the file cannot be written
     * @throws NullPointerException when file is null
     */
    public void writeSvg(Path file) throws IOException {
        Files.writeString(Arguments.notNull(file, "file"), toSvg(), StandardCharsets.UTF_8);
    }

    private static native String toSvgNative(long handle);
}
