# cmake -DIN=word-list -DOUT=dictionary.txt -P MakeDictionary.cmake
# One word a line, each line ended by CR LF, as the spell checker reads its list.
file(READ "${IN}" words)
string(REPLACE "\r\n" "\n" words "${words}")
string(REPLACE "\n" "\r\n" words "${words}")
file(WRITE "${OUT}.tmp" "${words}")
file(RENAME "${OUT}.tmp" "${OUT}")
