# The log of earlier runs has reached the file size limit of this run
# (4 KiB): every write of this run into it fails.
head -c 4096 /dev/zero | tr '\0' 'o' > validator.log
cp validator.log old.log
