mkdir -p models/dir.xml
