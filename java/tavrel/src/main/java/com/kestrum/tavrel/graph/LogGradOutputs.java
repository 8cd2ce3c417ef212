package com.kestrum.tavrel.graph;

/** The output arrays of a logarithmic axis's log-graduation query, and what the toolkit wrote into them. */
final class LogGradOutputs {
    final short[] count = new short[1];
    /** Room for the longest decade list a count of 16 bits describes. */
    final short[] decades = new short[Short.MAX_VALUE];
    final int[] tenPowerRep = new int[1];
    final int[] decadeRep = new int[1];
    final String[] fontName = new String[1];
    final float[] value = new float[1];

    /** The decade list written, as the toolkit's unsigned values. */
    int[] decadeList() {
        int[] list = new int[Math.max(0, count[0])];
        for (int i = 0; i < list.length; i++) {
            list[i] = Short.toUnsignedInt(decades[i]);
        }
        return list;
    }
}
