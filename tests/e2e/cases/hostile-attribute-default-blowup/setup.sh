# An attribute default that copies a 10 000-byte entity into each of
# 20 000 elements: 200 MB from a file of about 90 KB.
{
  printf '<?xml version="1.0"?>\n<!DOCTYPE models [<!ENTITY x "'
  head -c 10000 /dev/zero | tr '\0' 'A'
  printf '"><!ATTLIST e v CDATA "&x;">]>\n<models>'
  for i in $(seq 20000); do printf '<e/>'; done
  printf '</models>\n'
} > a.xml
