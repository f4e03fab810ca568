mkfifo x.xml
