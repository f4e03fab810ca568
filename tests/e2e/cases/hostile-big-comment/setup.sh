# A valid model with a 20 MB comment in its mim.
{
  printf '<?xml version="1.0"?>\n<models>\n  <mim name="A" version="1" namespace="urn:example:a" namespacePrefix="a">\n    <!--'
  head -c 20000000 /dev/zero | tr '\0' 'c'
  printf -- '-->\n    <class name="ARoot"><root/><attribute name="aRootId"><mandatory/><key/><dataType><string/></dataType></attribute></class>\n  </mim>\n</models>\n'
} > a.xml
