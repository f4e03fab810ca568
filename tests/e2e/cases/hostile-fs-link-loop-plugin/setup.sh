ln -s loop2.so loop1.so
ln -s loop1.so loop2.so
