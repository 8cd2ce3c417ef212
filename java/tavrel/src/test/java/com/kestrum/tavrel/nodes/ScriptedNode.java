package com.kestrum.tavrel.nodes;

import com.kestrum.corvel.SoInput;
import com.kestrum.corvel.actions.SoAction;
import com.kestrum.corvel.actions.SoCallbackAction;
import com.kestrum.corvel.actions.SoDistributeAction;
import com.kestrum.corvel.actions.SoGLRenderAction;
import com.kestrum.corvel.actions.SoGetBoundingBoxAction;
import com.kestrum.corvel.actions.SoGetMatrixAction;
import com.kestrum.corvel.actions.SoGetPrimitiveCountAction;
import com.kestrum.corvel.actions.SoHandleEventAction;
import com.kestrum.corvel.actions.SoPickAction;
import com.kestrum.corvel.actions.SoRayPickAction;
import com.kestrum.corvel.actions.SoSearchAction;
import com.kestrum.corvel.actions.SoWriteAction;
import com.kestrum.corvel.fields.SoField;
import com.kestrum.corvel.misc.ManagedObjects;
import com.kestrum.corvel.nodes.SoNode;
import com.kestrum.tavrel.testkit.Nodes;
import java.util.ArrayList;
import java.util.List;

/**
 * A node that overrides every forwarded operation: each override records its call (with its
 * arguments) and returns a value the toolkit's own implementation would not give, or throws
 * "boom &lt;operation&gt;" when it is the {@link #failing} one.
 */
final class ScriptedNode extends PoNode {
    final List<String> calls = new ArrayList<>();
    String failing;
    final long field = Nodes.newField("javaField");

    ScriptedNode() {
        super("ScriptedNode");
    }

    private void enter(String operation, Object... args) {
        StringBuilder b = new StringBuilder(operation);
        for (Object a : args) {
            b.append(' ').append(a instanceof SoAction || a instanceof SoInput || a instanceof SoNode
                    ? a.getClass().getSimpleName() : String.valueOf(a));
        }
        calls.add(b.toString());
        if (operation.equals(failing)) {
            throw new RuntimeException("boom " + operation);
        }
    }

    private SoField field() {
        return (SoField) ManagedObjects.get("com.kestrum.corvel.fields.SoField", field);
    }

    @Override public void touch() { enter("touch"); }
    @Override public String getName() { enter("getName"); return "javaName"; }
    @Override public void setName(String name) { enter("setName", name); }
    @Override public String getFileFormatName() { enter("getFileFormatName"); return "JavaFormat"; }
    @Override public boolean readInstance(SoInput in, short flags) { enter("readInstance", in, flags); return true; }
    @Override public SoField getField(String name) { enter("getField", name); return field(); }
    @Override public SoField getEventIn(String name) { enter("getEventIn", name); return field(); }
    @Override public SoField getEventOut(String name) { enter("getEventOut", name); return field(); }
    @Override public void setOverride(boolean state) { enter("setOverride", state); }
    @Override public boolean isOverride() { enter("isOverride"); return true; }
    @Override public SoNode copy(boolean copyConnections) { enter("copy", copyConnections); return this; }
    @Override public boolean affectsState() { enter("affectsState"); return true; }
    @Override protected void internalAddChild(SoNode child) { enter("internalAddChild", child.getTypeName()); }
    @Override public SoNode getAlternateRep(SoAction action) { enter("getAlternateRep", action); return this; }
    @Override public boolean isBoundingBoxIgnoring() { enter("isBoundingBoxIgnoring"); return true; }
    @Override public void doAction(SoAction action) { enter("doAction", action); }
    @Override public void GLRender(SoGLRenderAction action) { enter("GLRender", action); }
    @Override public void callback(SoCallbackAction action) { enter("callback", action); }
    @Override public void getBoundingBox(SoGetBoundingBoxAction action) { enter("getBoundingBox", action); }
    @Override public void getMatrix(SoGetMatrixAction action) { enter("getMatrix", action); }
    @Override public void handleEvent(SoHandleEventAction action) { enter("handleEvent", action); }
    @Override public void pick(SoPickAction action) { enter("pick", action); }
    @Override public void rayPick(SoRayPickAction action) { enter("rayPick", action); }
    @Override public void search(SoSearchAction action) { enter("search", action); }
    @Override public void write(SoWriteAction action) { enter("write", action); }
    @Override public void getPrimitiveCount(SoGetPrimitiveCountAction action) { enter("getPrimitiveCount", action); }
    @Override public void distribute(SoDistributeAction action) { enter("distribute", action); }
    @Override public void GLRenderBelowPath(SoGLRenderAction action) { enter("GLRenderBelowPath", action); }
    @Override public void GLRenderInPath(SoGLRenderAction action) { enter("GLRenderInPath", action); }
    @Override public void GLRenderOffPath(SoGLRenderAction action) { enter("GLRenderOffPath", action); }
    @Override public void grabEventsSetup() { enter("grabEventsSetup"); }
    @Override public void grabEventsCleanup() { enter("grabEventsCleanup"); }
    @Override public int getRenderUnitID() { enter("getRenderUnitID"); return 42; }
}
