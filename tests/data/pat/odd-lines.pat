*NOTHING
*SHORT,x
0, 0,0
0,x,1,,2,3,4,y,5
