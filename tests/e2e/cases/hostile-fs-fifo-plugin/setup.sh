mkfifo p.so
