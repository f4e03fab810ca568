mkdir -p dir/sub.xml
cp a.xml dir/
