# 200 000 start tags and no end tag.
{
  printf '<?xml version="1.0"?>\n<models>'
  for i in $(seq 20000); do printf '<x><x><x><x><x><x><x><x><x><x>'; done
} > a.xml
