mkfifo fifo
