# 64 KiB of bytes from a fixed pseudo-random sequence.
awk 'BEGIN { s = 12345; for (i = 0; i < 65536; i++) { s = (s * 1103515245 + 12345) % 2147483648; printf "%c", int(s / 65536) % 256 } }' > a.xml
