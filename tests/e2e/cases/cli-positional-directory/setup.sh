mkdir folder.xml
