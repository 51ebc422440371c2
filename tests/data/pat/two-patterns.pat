; two patterns
*LINES, Parallel lines
45, 0,0, 0,3.175
*CROSS, Crossed dashes
0, 0,0, 0,1, .5,-.5
90, 0,0, 0,1, .5,-.5
