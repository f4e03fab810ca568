# One struct with 100 000 members.
{
  printf '<?xml version="1.0"?>\n<models>\n  <mim name="A" version="1" namespace="urn:example:a" namespacePrefix="a">\n    <struct name="S">\n'
  seq 100000 | sed 's|.*|      <structMember name="m&"><int32/></structMember>|'
  printf '    </struct>\n'
  printf '    <class name="ARoot"><root/><attribute name="aRootId"><mandatory/><key/><dataType><string/></dataType></attribute></class>\n'
  printf '  </mim>\n</models>\n'
} > a.xml
