mkdir dir
mkfifo dir/p.xml pipe.xml
printf 'a.xml\npipe.xml\n' > list
