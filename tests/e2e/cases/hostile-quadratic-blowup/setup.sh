# One entity of 100 000 bytes, referenced 1 000 times in one attribute:
# 100 MB once expanded, from a file of about 105 KB.
{
  printf '<?xml version="1.0"?>\n<!DOCTYPE models [<!ENTITY x "'
  head -c 100000 /dev/zero | tr '\0' 'A'
  printf '">]>\n<models><mim name="'
  for i in $(seq 1000); do printf '&x;'; done
  printf '"/></models>\n'
} > a.xml
