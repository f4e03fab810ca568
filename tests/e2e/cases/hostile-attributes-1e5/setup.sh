# One class with 100 000 attributes.
{
  printf '<?xml version="1.0"?>\n<models>\n  <mim name="A" version="1" namespace="urn:example:a" namespacePrefix="a">\n'
  printf '    <class name="ARoot"><root/><attribute name="aRootId"><mandatory/><key/><dataType><string/></dataType></attribute>\n'
  seq 100000 | sed 's|.*|      <attribute name="a&"><mandatory/><dataType><int32/></dataType></attribute>|'
  printf '    </class>\n  </mim>\n</models>\n'
} > a.xml
