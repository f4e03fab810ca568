# One enumeration with a literal for each of the 65 536 values a literal
# can take, then a literal of a name already listed and one of a value
# already listed.
{
  printf '<?xml version="1.0"?>\n<models>\n  <mim name="A" version="1" namespace="urn:example:a" namespacePrefix="a">\n    <enum name="E">\n'
  seq -32768 32767 | sed 's|.*|      <enumMember name="L&"><value>&</value></enumMember>|'
  printf '      <enumMember name="L5"><value>1</value></enumMember>\n'
  printf '      <enumMember name="OTHER"><value>7</value></enumMember>\n'
  printf '    </enum>\n'
  printf '    <class name="ARoot"><root/><attribute name="aRootId"><mandatory/><key/><dataType><string/></dataType></attribute></class>\n'
  printf '  </mim>\n</models>\n'
} > a.xml
