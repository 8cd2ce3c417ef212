# The plots of BENCHMARKS.md, from the data files that BenchReport writes into `dir`:
#   gnuplot -e "dir='benchmarks'" scripts/bench-plots.gp
# vector-conversion.png, data-sets.png, bulk-build.png and bulk-render.png: ns per element against
# size (log-log), one line per benchmark and JDK (the newer JDK dashed); ratios.png: each path's ratio to its floor per JDK,
# with its goal.
if (!exists("dir")) dir = "benchmarks"
load dir."/plot-vars.gp"
set terminal pngcairo size 900,560 enhanced font "DejaVu Sans,10"
set datafile missing "NaN"
set key outside right top noenhanced
set grid
set logscale xy
set format x "10^{%L}"
set format y "%g"
set xlabel "size (elements)"

set output dir."/vector-conversion.png"
set title "addVecsSet: ns per vector against the number of vectors"
set ylabel "ns per vector"
plot for [c=2:nvectors] dir."/vectors.dat" using 1:c with linespoints \
     lt 1 + (c - 2) / njdk dt 1 + (c - 2) % njdk lw 2 pt 7 title columnhead(c)

set output dir."/data-sets.png"
set title "A values set leaving the mesh: ns per value against the number of values"
set ylabel "ns per value"
plot for [c=2:ndatasets] dir."/datasets.dat" using 1:c with linespoints \
     lt 1 + (c - 2) / njdk dt 1 + (c - 2) % njdk lw 2 pt 7 title columnhead(c)

# bulk-build.png and bulk-render.png: the bulk paths (graph nodes built from arrays with their
# floors; renders of those nodes and of meshes through cell filters), ns per element against size.
set output dir."/bulk-build.png"
set title "Graph nodes built from Java arrays, and their floors: ns per element against size"
set ylabel "ns per element"
plot for [c=2:nbulkbuild] dir."/bulk-build.dat" using 1:c with linespoints \
     lt 1 + (c - 2) / njdk dt 1 + (c - 2) % njdk lw 2 pt 7 title columnhead(c)

set output dir."/bulk-render.png"
set title "Renders: ns per element drawn (per cell for the meshes) against size"
set ylabel "ns per element"
plot for [c=2:nbulkrender] dir."/bulk-render.dat" using 1:c with linespoints \
     lt 1 + (c - 2) / njdk dt 1 + (c - 2) % njdk lw 2 pt 7 title columnhead(c)

unset logscale
set format x "%g"
set terminal pngcairo size 1100,650 enhanced font "DejaVu Sans,10"
set output dir."/ratios.png"
set title "Each path's ratio to its floor (1 = the floor; black crosses: the goal)"
set ylabel "ratio to floor (log scale)"
set xlabel ""
set style data histogram
set style histogram clustered gap 1 errorbars lw 1
set style fill solid 0.7 border -1
set boxwidth 0.9
set xtics rotate by -35 left noenhanced
set bmargin 9
set rmargin 10
set logscale y
set yrange [0.1:*]
set key inside left top
set key autotitle columnhead
plot for [j=1:njdk] dir."/ratios.dat" using (column(1 + 2 * j)):(column(2 + 2 * j)):xtic(1) title columnhead(1 + 2 * j), \
     dir."/ratios.dat" using 0:2 with points pt 2 ps 2 lw 2 lc rgb "black" title "goal", \
     1 with lines dt 2 lc rgb "gray40" notitle
