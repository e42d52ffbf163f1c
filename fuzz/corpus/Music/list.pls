[playlist]
File2=Two.wav
Title2=Second
Length2=-1
file1=Band/One.mp3
NumberOfEntries=9
