# Turns the file INPUT into the elements of a C array in the file OUTPUT.
file(READ ${INPUT} bytes HEX)
string(REGEX REPLACE "(..)" "0x\\1," bytes "${bytes}")
file(WRITE ${OUTPUT} "${bytes}\n")
